#include "SimImage.h"

std::optional<zeb::ImageFormat> SimImage::getImageFormat(int /*kind*/, int /*head*/) const {
    const Camera& camera = ask(OPERATION("getImageFormat"));
    if (!camera.get(&CameraState::connected)) {
        return std::nullopt;
    }
    const int bits = camera.model().bitDepth;
    return zeb::ImageFormat{bits > 8 ? 16 : 8, bits};
}

void SimImage::setToolRect(const QString& tool, const QRect& rect) {
    const QVariantList plainRect{rect.x(), rect.y(), rect.width(), rect.height()};
    const Camera& camera = change(OPERATION("DOC_Image::setToolRect"), {tool, QVariant(plainRect)});
    m_host.docs.tools().setRect(tool, camera.key(), rect);
}
