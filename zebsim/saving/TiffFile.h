#pragma once

#include "PictureOptions.h"

#include <QByteArray>
#include <QString>

class QIODevice;
class QImage;
struct tiff;

/// Writes pictures into a device as the pages of a TIFF file. One thread at a time.
class TiffFile {
public:
    /// `device` is open for reading and writing, and must outlive the file. Past 4 GiB it must be `isBig`.
    TiffFile(QIODevice& device, const PictureOptions& options, bool isBig = false);
    ~TiffFile();
    TiffFile(const TiffFile&) = delete;
    TiffFile& operator=(const TiffFile&) = delete;

    /// `description` is text without a zero in it. False when it can't be written.
    bool add(const QImage& picture, const QByteArray& description);
    /// Why the device has taken less than it was given, in the words of the system; empty when it has not.
    const QString& failure() const { return m_failure; }

private:
    struct Access;

    void setTags(const QImage& picture, const QByteArray& description);
    bool writeRows(const QImage& picture);

    QIODevice& m_device;
    const PictureOptions m_options;
    QString m_failure;
    tiff* m_file = nullptr;
};
