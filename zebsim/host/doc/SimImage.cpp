#include "SimImage.h"

#include "Clock.h"
#include "FramePicture.h"
#include "HostWindows.h"
#include "Preferences.h"
#include "SaveOrders.h"
#include "SimAppStatus.h"

std::optional<zeb::ImageFormat> SimImage::getImageFormat(int /*kind*/, int /*head*/) const {
    const Camera& camera = ask(OPERATION("getImageFormat"));
    if (!camera.get(&CameraState::connected)) {
        return std::nullopt;
    }
    const int bits = camera.model().bitDepth;
    return zeb::ImageFormat{bits > 8 ? 16 : 8, bits};
}

QPixmap SimImage::getPreview(int type, int width, int height, PARTITIONNUMBER partition, int frame,
                             const QDateTime& time) const {
    askConnected(OPERATION("getPreview"));
    const CameraFrame shown = previewed(partition, frame);
    const QSize size = fitInto({width, height}, shown.resolution);
    if (size.isEmpty()) {
        return {};
    }
    const QImage saved = asSaved(type, partition, frame, time);
    return QPixmap::fromImage(saved.isNull() ? drawFrameOrFailure(shown, size)
                                             : saved.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

/// Of the whole size; null where nothing is drawn over a saved picture.
QImage SimImage::asSaved(int type, PARTITIONNUMBER partition, int frame, const QDateTime& time) const {
    const auto pref = [this](const QString& key) { return m_host.prefs.value(key); };
    SaveOrders orders = chosenOrders(pref, nameFamily(type));
    const auto camera = m_host.cameras.hold(m_camera.key());
    const auto recording = m_camera.recordingOf(partition);
    if (orders.drawn.lines.empty() || !recording || !camera) {
        return {};
    }
    SaveTrack track{m_camera.name(), false, {SaveSource(camera, *recording, m_camera.name())}};
    track.stem = m_host.windows->fileName(type, m_camera.key(), partition, time);
    orders.date = time;
    const int shown = frame == 0 ? m_host.windows->shownFrame(m_camera.key(), *recording) : frame;
    return orders.picture(track, qBound(0, shown - recording->selectedFirst, track.frames() - 1));
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
