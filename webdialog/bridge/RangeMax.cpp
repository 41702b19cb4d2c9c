#include "RangeMax.h"

#include "DOC_Image.h"
#include "DOC_Interface.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

namespace {

constexpr int DefaultBits = 8;
constexpr int MaxBits = 31;

}  // namespace

int largestPixelValue(const std::optional<zeb::ImageFormat>& format) {
    int bits = DefaultBits;
    if (format) {
        bits = format->depth > DefaultBits ? format->realDepth : format->depth;
    }
    return static_cast<int>((1U << qBound(0, bits, MaxBits)) - 1);
}

int rangeMax(ZebHost& host) {
    std::optional<zeb::ImageFormat> format;
    if (host.getPrefBool(QStringLiteral("display/DisplayWithRealBitDepth"))) {
        if (DOC_Interface* doc = host.docManager().getCurrentDoc()) {
            format = doc->image().getImageFormat(0, 0);
        }
    }
    return largestPixelValue(format);
}
