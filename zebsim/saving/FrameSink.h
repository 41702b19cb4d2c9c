#pragma once

#include <QSet>

#include <functional>
#include <memory>

class QString;
class StopSource;
enum class Over;
struct SaveOrders;
struct SaveTrack;

/// Where the frames of a track go: a file each, or one file. A file that is not complete when it is destroyed is
/// removed. Everything throws `FileError`.
class FrameSink {
public:
    using Step = std::function<void()>;

    virtual ~FrameSink() = default;

    /// Makes what is to be written of a frame; of several frames side by side, on any thread. Answers what is left to
    /// do: that is done in the order of the frames, one after the other, on any thread.
    virtual Step prepare(int index, const QSet<int>& lost) = 0;
    /// After the last of them.
    virtual void finish() {}
    /// When there is nothing more to be written, after a failure too: what is not complete goes.
    virtual void drop() {}

    /// For frames of `track`. What takes long ends when `stop` is stopped. They must outlive the sink.
    static std::unique_ptr<FrameSink> of(const SaveOrders& orders, const SaveTrack& track, const StopSource& stop);
};

/// Throws when the disk does not take a file of so many bytes at that path.
void meetDiskFault(const SaveOrders& orders, const QString& path, qint64 bytes);
/// Whether the orders let an old file of that path go.
Over overOf(const SaveOrders& orders, const QString& path);
