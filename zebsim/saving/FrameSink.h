#pragma once

#include "FileMetadata.h"

#include <QImage>
#include <QString>

/// A frame as it goes into a file.
struct SavedFrame {
    QImage picture;
    /// A file name's text for it.
    QString number;
    /// Empty for a video, which has one text for all frames.
    FileMetadata metadata;
};

/// Where the frames of a camera go: a file each, or one file. What is not complete when it is destroyed is removed.
/// Everything throws `FileError`. GUI thread.
class FrameSink {
public:
    virtual ~FrameSink() = default;

    /// False when the user keeps a file that stands in the way.
    virtual bool write(SavedFrame frame) = 0;
    /// Still at work on what it was given; frames are to wait.
    virtual bool isBusy() { return false; }
    /// All frames are written; it may be busy then for a last time.
    virtual void close() {}
    /// Once closed and not busy: the last file is complete. False when the user keeps one that stands in its way.
    virtual bool complete() { return true; }
};
