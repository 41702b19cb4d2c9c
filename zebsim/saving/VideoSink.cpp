#include "VideoSink.h"

#include "FileError.h"
#include "SaveOrders.h"
#include "TextKey.h"
#include "UiText.h"

#include <QFileInfo>
#include <QImage>

VideoSink::VideoSink(const SaveOrders& orders, const SaveTrack& track, const StopSource& stop)
    : m_orders(orders), m_track(track), m_stop(stop), m_path(orders.fileOf(track, track.from)) {}

FrameSink::Step VideoSink::prepare(int index, const QSet<int>& lost) {
    const QImage picture = m_orders.picture(m_track, index, lost).convertToFormat(QImage::Format_RGB32);
    return [this, picture] { feed(picture); };
}

void VideoSink::feed(const QImage& picture) {
    if (!m_process) {
        m_file.emplace(m_path, overOf(m_orders, m_path));
        const VideoEncoder& encoder = m_orders.encoder;
        m_process.emplace(encoder.program,
                          encoder.arguments(picture.size(), m_file->temporaryPath(), m_orders.format.id,
                                            m_orders.format.video, m_track.metadataOfAll()),
                          m_stop);
    }
    if (!m_process->write(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes())) {
        fail();
    }
    ++m_frames;
}

void VideoSink::finish() {
    if (m_process) {
        // It ends well even when the end of the file could not be written, but says nothing unless something is wrong.
        if (!m_process->finish()) {
            fail();
        }
        countFrames();
        meetDiskFault(m_orders, m_path, QFileInfo(m_file->temporaryPath()).size());
        m_file->complete();
    }
}

/// Some encoders leave frames out, and say nothing.
void VideoSink::countFrames() const {
    const std::optional<int> there = m_orders.encoder.framesIn(m_file->temporaryPath(), m_stop);
    if (!there) {
        throw FileError(m_path, TextKey("its frames can't be counted"));
    }
    if (*there != m_frames) {
        throw FileError(m_path, uiText("%1 of its %2 frames are in it").arg(*there).arg(m_frames));
    }
}

void VideoSink::drop() {
    m_process.reset();
    m_file.reset();
}

void VideoSink::fail() {
    // The last word comes with the end.
    m_process->finish();
    throw FileError(m_path, m_process->complaint());
}
