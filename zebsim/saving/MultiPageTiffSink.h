#pragma once

#include "FileWriter.h"
#include "FrameSink.h"
#include "TiffFile.h"

#include <QFile>

#include <optional>

/// Makes one TIFF file of all frames, a page each. Pages are compressed as they are written, one after the other: of a
/// single track on one core.
class MultiPageTiffSink : public FrameSink {
public:
    MultiPageTiffSink(const SaveOrders& orders, const SaveTrack& track);

    Step prepare(int index, const QSet<int>& lost) override;
    void finish() override;
    void drop() override;

private:
    void begin();
    void add(const QImage& picture, const QByteArray& description);

    const SaveOrders& m_orders;
    const SaveTrack& m_track;
    const QString m_path;
    std::optional<FileWriter> m_file;
    QFile m_device;
    std::optional<TiffFile> m_pages;
};
