#pragma once

#include <QImage>
#include <QString>

/// The pictures of a recording that lies in files. Any thread.
class RecordedPictures {
public:
    virtual ~RecordedPictures() = default;

    /// That of the frame with this number in the memory, of the format RGB32, or RGBX64 where a channel has more than 8
    /// bits; those that the camera has filled are the upper ones. Throws `FileError`.
    virtual QImage picture(int frame) const = 0;
    /// Whether one of them, or what tells of them, is the file of that path. No link leads to its folder.
    virtual bool areIn(const QString& path) const = 0;
};
