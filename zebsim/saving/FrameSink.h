#pragma once

#include <QString>

class QImage;

/// Where the frames of a camera go: a file each, or one file. What is not complete when it is destroyed is removed.
/// Everything throws `FileError`. GUI thread.
class FrameSink {
public:
    virtual ~FrameSink() = default;

    /// Writes a frame with a file name's text for its number. False when the user keeps a file that stands in the way.
    virtual bool write(const QImage& picture, const QString& number) = 0;
    /// Still at work on what it was given; frames are to wait.
    virtual bool isBusy() { return false; }
    /// All frames are written; it may be busy then for a last time.
    virtual void close() {}
    /// Once closed and not busy: the last file is complete. False when the user keeps one that stands in its way.
    virtual bool complete() { return true; }
};
