#pragma once

#include "InformationFile.h"

/// What stands in the file of that path, docs/recordings.md. Throws `JsonError` for one that can't be trusted, as for
/// one of which a name leads out of its folder. Any thread.
RecordingInformation readInformation(const QString& path);
/// The same as the program opens it: its recording is that which stands in the files, numbered as in the memory, or
/// from 0 on where frames were left out, with the rate that this makes.
RecordingInformation asOpened(RecordingInformation information);
