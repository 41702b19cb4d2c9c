#pragma once

#include <QImage>
#include <QStringList>

/// The pictures of a recording that lies in files. Any thread.
class RecordedPictures {
public:
    virtual ~RecordedPictures() = default;

    /// That of the frame with this number in the memory, of the format RGB32, or RGBX64 where a channel has more than 8
    /// bits; those that the camera has filled are the upper ones. Throws `FileError`.
    virtual QImage picture(int frame) const = 0;
    /// Paths of their files, and of the one that tells of them. No link leads to their folder.
    virtual QStringList files() const = 0;
};
