#pragma once

#include "ZebTypes.h"

class QString;
class ZebHost;

/// The document that the user works on, if its camera can be asked; null otherwise.
DOC_Interface* currentCamera(ZebHost& host);

/// The memory partition that this camera has in use, and its name; 0 and an empty text without a camera.
PARTITIONNUMBER currentPartition(ZebHost& host);
QString currentPartitionName(ZebHost& host);
