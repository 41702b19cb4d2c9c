#include "SimImage.h"

#include "Clock.h"
#include "FramePicture.h"
#include "HostWindows.h"
#include "SimAppStatus.h"

std::optional<zeb::ImageFormat> SimImage::getImageFormat(int /*kind*/, int /*head*/) const {
    const Camera& camera = ask(OPERATION("getImageFormat"));
    if (!camera.get(&CameraState::connected)) {
        return std::nullopt;
    }
    const int bits = camera.model().bitDepth;
    return zeb::ImageFormat{bits > 8 ? 16 : 8, bits};
}

QPixmap SimImage::getPreview(int /*type*/, int width, int height, PARTITIONNUMBER partition, int frame,
                             const QDateTime& /*time*/) const {
    askConnected(OPERATION("getPreview"));
    const CameraFrame shown = previewed(partition, frame);
    const QSize size = fitInto({width, height}, shown.resolution);
    return size.isEmpty() ? QPixmap() : QPixmap::fromImage(drawFrameOrFailure(shown, size));
}

/// Of no resolution when there is none.
CameraFrame SimImage::previewed(PARTITIONNUMBER partition, int frame) const {
    const CameraState state = m_camera.state();
    const SensorNoise noise = SensorNoise::of(m_camera);
    if (const auto recording = m_camera.recordingOf(partition)) {
        const int shown = frame == 0 ? m_host.windows->shownFrame(m_camera.key(), *recording) : frame;
        return CameraFrame::recorded(state, noise, *recording, shown);
    }
    return m_host.appStatus.mode() == zeb::LiveMode ? CameraFrame::live(state, noise, m_host.clock.now())
                                                    : CameraFrame();
}

void SimImage::setToolRect(const QString& tool, const QRect& rect) {
    const QVariantList plainRect{rect.x(), rect.y(), rect.width(), rect.height()};
    const Camera& camera = change(OPERATION("DOC_Image::setToolRect"), {tool, QVariant(plainRect)});
    m_host.docs.tools().setRect(tool, camera.key(), rect);
}
