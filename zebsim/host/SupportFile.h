#pragma once

#include "ZebSupportFile.h"

class SimHost;

/// What the host itself knows for a support file: cameras and their logs, preferences, calls, the machine, its
/// version.
void addHostState(ZebSupportFile& file, const SimHost& host);

/// Writes `file` to `path` as ZIP, wholly or not at all. False, with a line in the log, when that fails. Any thread.
bool writeSupportFile(const QString& path, const ZebSupportFile& file);
