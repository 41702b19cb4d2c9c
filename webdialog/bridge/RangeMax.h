#pragma once

#include "ZebTypes.h"

#include <optional>

class ZebHost;

/// Largest value of a pixel. `format` is nothing when pixels are shown in 8 bits whatever the camera fills.
int largestPixelValue(const std::optional<zeb::ImageFormat>& format);

/// The same of the current document, as the user has chosen to see it.
int rangeMax(ZebHost& host);
