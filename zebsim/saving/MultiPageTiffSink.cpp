#include "MultiPageTiffSink.h"

#include "FileError.h"
#include "PixelRow.h"
#include "SaveOrders.h"
#include "TextKey.h"

#include <QFileInfo>
#include <QImage>

namespace {

/// Pixels that the plain form of TIFF surely has room for, compressed or not.
constexpr qint64 MostPlainBytes = qint64(2) << 30;

}  // namespace

MultiPageTiffSink::MultiPageTiffSink(const SaveOrders& orders, const SaveTrack& track)
    : m_orders(orders), m_track(track), m_path(orders.fileOf(track, track.from)) {}

FrameSink::Step MultiPageTiffSink::prepare(int index, const QSet<int>& lost) {
    const QImage picture = m_orders.picture(m_track, index, lost);
    const QByteArray description = m_track.metadata(index, lost).description;
    return [this, picture, description] { add(picture, description); };
}

void MultiPageTiffSink::begin() {
    m_file.emplace(m_path, overOf(m_orders, m_path));
    m_device.open(m_file->descriptor(), QIODevice::ReadWrite | QIODevice::Unbuffered);
    const QSize size = m_track.size();
    PictureOptions options = m_orders.format.options;
    options.cameraBits = m_track.bits();
    const qint64 pageBytes = qint64(rowBytes(size.width(), options.depth)) * size.height();
    m_pages.emplace(m_device, options, pageBytes * m_track.frames() > MostPlainBytes);
}

void MultiPageTiffSink::add(const QImage& picture, const QByteArray& description) {
    if (!m_pages) {
        begin();
    }
    if (!m_pages->add(picture, description)) {
        throw FileError(m_path,
                        m_pages->failure().isEmpty() ? TextKey("the picture has no such form") : m_pages->failure());
    }
}

void MultiPageTiffSink::finish() {
    if (m_pages) {
        m_pages.reset();
        m_device.close();
        meetDiskFault(m_orders, m_path, QFileInfo(m_file->temporaryPath()).size());
        m_file->complete();
    }
}

void MultiPageTiffSink::drop() {
    m_pages.reset();
    m_device.close();
    m_file.reset();
}
