#pragma once

#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

/// Reads pictures that this program has written: of the format RGB32, or RGBX64 for 16 bits a channel, as they stand in
/// the file. A picture of another size than `size` is not read. Any thread; all throw `FileError`.
///
/// That of a file of that format, as "png"; of several pages the first.
QImage readPicture(const QString& path, const QString& format, const QSize& size);

/// Where the first `most` pages of a TIFF file begin.
QList<quint64> tiffPages(const QString& path, int most);
/// The page that begins there.
QImage readTiffPage(const QString& path, quint64 page, const QSize& size);
