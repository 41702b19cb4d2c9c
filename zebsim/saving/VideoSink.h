#pragma once

#include "EncoderProcess.h"
#include "FileWriter.h"
#include "FrameSink.h"

#include <optional>

class QImage;

/// Makes one video of all frames.
class VideoSink : public FrameSink {
public:
    VideoSink(const SaveOrders& orders, const SaveTrack& track, const StopSource& stop);

    Step prepare(int index, const QSet<int>& lost) override;
    void finish() override;
    void drop() override;

private:
    void feed(const QImage& picture);
    void countFrames() const;
    [[noreturn]] void fail();

    const SaveOrders& m_orders;
    const SaveTrack& m_track;
    const StopSource& m_stop;
    const QString m_path;
    std::optional<FileWriter> m_file;
    std::optional<EncoderProcess> m_process;
    int m_frames = 0;
};
