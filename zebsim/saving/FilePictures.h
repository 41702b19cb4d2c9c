#pragma once

#include "InformationFile.h"
#include "RecordedPictures.h"

#include <mutex>

/// The pictures of a recording that this program has saved. Those that were read last are kept, of all recordings
/// together as many as the memory for it holds.
class FilePictures : public RecordedPictures {
public:
    /// `path` is that of the file that tells of them.
    FilePictures(const QString& path, RecordingInformation information);
    ~FilePictures() override;
    FilePictures(const FilePictures&) = delete;
    FilePictures& operator=(const FilePictures&) = delete;

    QImage picture(int frame) const override;
    QStringList files() const override;

private:
    QImage read(int index) const;
    /// Throws `FileError` when the file that tells of them has been written since.
    void checkUnchanged() const;
    QImage readPage(const QString& path, int index) const;
    /// With the bits that the camera has filled as the upper ones.
    QImage aligned(QImage picture) const;

    const RecordingInformation m_information;
    /// Without links, with a '/' at its end.
    const QString m_folder;
    const QString m_name;
    const QDateTime m_written;
    /// Of one file for all frames, once it was looked at.
    mutable QList<quint64> m_pages;
    mutable std::mutex m_mutex;
};
