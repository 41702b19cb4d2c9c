#pragma once

#include "FrameSink.h"
#include "VideoEncoder.h"

#include <QProcess>
#include <QTemporaryFile>

class FileClaims;

/// Makes one video of all frames. It grows beside its place under another name, so that nothing half done bears its
/// own.
class VideoSink : public FrameSink {
public:
    /// The user is asked about `file` with the first frame, and it is made with the last, with `metadata` of all of
    /// them. `claims` must outlive the sink.
    VideoSink(FileClaims& claims, VideoEncoder encoder, QString file, FileMetadata metadata);
    ~VideoSink() override;

    bool write(SavedFrame frame) override;
    bool isBusy() override;
    void close() override;
    bool complete() override;

private:
    bool begin(const QSize& size);
    [[noreturn]] void fail();

    FileClaims& m_claims;
    const VideoEncoder m_encoder;
    const QString m_file;
    const FileMetadata m_metadata;
    QTemporaryFile m_growing;
    QProcess m_process;
    qint64 m_frameSize = 0;
    bool m_begun = false;
    bool m_closed = false;
};
