#include "SimImage.h"

#include "Camera.h"
#include "DocContext.h"
#include "HostCalls.h"
#include "ImageTools.h"

QString SimImage::getComment() const {
    m_camera.ask(OPERATION("getComment"));
    return m_camera.get(&CameraState::comment);
}

void SimImage::setComment(const QString& comment) {
    m_context.calls.note("DOC_Image::setComment", {m_camera.key(), comment});
    m_camera.setComment(comment);
}

std::optional<zeb::ImageFormat> SimImage::getImageFormat(int /*kind*/, int /*head*/) const {
    m_camera.ask(OPERATION("getImageFormat"));
    if (!m_camera.get(&CameraState::connected)) {
        return std::nullopt;
    }
    const int bits = m_camera.model().bitDepth;
    return zeb::ImageFormat{bits > 8 ? 16 : 8, bits};
}

QSize SimImage::getImageSize() const {
    m_camera.ask(OPERATION("getImageSize"));
    return m_camera.get(&CameraState::resolution);
}

double SimImage::getScale() const {
    m_camera.ask(OPERATION("getScale"));
    return m_camera.get(&CameraState::scale);
}

int SimImage::getBinningPower() const {
    m_camera.ask(OPERATION("getBinningPower"));
    return m_camera.get(&CameraState::binningPower);
}

QPoint SimImage::getPoint() const {
    m_camera.ask(OPERATION("getPoint"));
    return m_camera.get(&CameraState::point);
}

QRect SimImage::getToolRect(const QString& tool) const {
    m_camera.ask(OPERATION("getToolRect"));
    return m_context.tools.rect(tool, m_camera.key());
}

void SimImage::setToolRect(const QString& tool, const QRect& rect) {
    const QVariantList plainRect{rect.x(), rect.y(), rect.width(), rect.height()};
    m_context.calls.note("DOC_Image::setToolRect", {m_camera.key(), tool, plainRect});
    m_camera.ask(OPERATION("setToolRect"));
    m_context.tools.setRect(tool, m_camera.key(), rect);
}

bool SimImage::isToolChecked(const QString& tool) const {
    m_camera.ask(OPERATION("isToolChecked"));
    return m_context.tools.isChosen(tool, m_camera.key());
}
