#pragma once

#include "Rig.h"

/// Connected cameras that have recorded so many frames, all of which are to be kept; `grain` as `CameraModel`'s.
Rig recordedRig(int cameras, const QSize& resolution, int frames, int grain);
