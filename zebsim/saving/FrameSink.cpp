#include "FrameSink.h"

#include "FileError.h"
#include "FileWriter.h"
#include "MultiPageTiffSink.h"
#include "SaveOrders.h"
#include "TextKey.h"
#include "VideoSink.h"

namespace {

/// Writes each frame as a picture of its own.
class PictureSink : public FrameSink {
public:
    PictureSink(const SaveOrders& orders, const SaveTrack& track) : m_orders(orders), m_track(track) {}

    Step prepare(int index, const QSet<int>& lost) override {
        const QString file = m_orders.fileOf(m_track, index);
        const QByteArray bytes = m_orders.format.encoded(m_orders.picture(m_track, index, lost),
                                                         m_track.metadata(index, lost), m_track.bits());
        if (bytes.isEmpty()) {
            throw FileError(file, TextKey("the picture has no such form"));
        }
        const Over over = overOf(m_orders, file);
        return [this, file, bytes, over] {
            meetDiskFault(m_orders, file, bytes.size());
            writeFile(file, bytes, over);
        };
    }

private:
    const SaveOrders& m_orders;
    const SaveTrack& m_track;
};

}  // namespace

std::unique_ptr<FrameSink> FrameSink::of(const SaveOrders& orders, const SaveTrack& track, const StopSource& stop) {
    if (orders.format.isVideo()) {
        return std::make_unique<VideoSink>(orders, track, stop);
    }
    if (orders.format.isOneFile()) {
        return std::make_unique<MultiPageTiffSink>(orders, track);
    }
    return std::make_unique<PictureSink>(orders, track);
}

void meetDiskFault(const SaveOrders& orders, const QString& path, qint64 bytes) {
    const QString reason = orders.diskFault(path, bytes);
    if (!reason.isEmpty()) {
        throw FileError(path, reason);
    }
}

Over overOf(const SaveOrders& orders, const QString& path) {
    return orders.mayReplace.contains(path) ? Over::OldFile : Over::Nothing;
}
