#include "VideoSink.h"

#include "FileClaims.h"
#include "FileError.h"

#include <QFileInfo>
#include <QImage>

#include <filesystem>

namespace {

/// Frames that may wait for the encoder.
constexpr qint64 MostWaiting = 4;

}  // namespace

VideoSink::VideoSink(FileClaims& claims, VideoEncoder encoder, QString file, FileMetadata metadata)
    : m_claims(claims),
      m_encoder(std::move(encoder)),
      m_file(std::move(file)),
      m_metadata(std::move(metadata)),
      m_growing(QFileInfo(m_file).path() % QStringLiteral("/.zebsim-XXXXXX.mp4")) {}

VideoSink::~VideoSink() {
    // It must have let go of its file before that is removed.
    m_process.kill();
    m_process.waitForFinished();
    m_claims.release();
}

bool VideoSink::begin(const QSize& size) {
    if (!m_claims.promise(m_file)) {
        return false;
    }
    if (!m_growing.open()) {
        throw FileError(m_file, m_growing.errorString());
    }
    m_growing.close();
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setReadChannel(QProcess::StandardError);
    m_process.start(m_encoder.program, m_encoder.arguments(size, m_growing.fileName(), m_metadata));
    m_begun = true;
    return true;
}

bool VideoSink::write(SavedFrame frame) {
    if (!m_begun && !begin(frame.picture.size())) {
        return false;
    }
    const QImage plain = frame.picture.convertToFormat(QImage::Format_RGB32);
    m_process.write(reinterpret_cast<const char*>(plain.constBits()), plain.sizeInBytes());
    m_frameSize = plain.sizeInBytes();
    return true;
}

bool VideoSink::isBusy() {
    if (m_process.state() == QProcess::NotRunning) {
        if (m_begun && !m_closed) {
            fail();
        }
        return false;
    }
    return m_closed || m_process.bytesToWrite() > MostWaiting * m_frameSize;
}

void VideoSink::close() {
    m_closed = true;
    m_process.closeWriteChannel();
}

bool VideoSink::complete() {
    if (!m_begun) {
        return true;
    }
    // It ends well even when the end of the file could not be written, but says nothing unless something is wrong.
    if (m_process.exitStatus() != QProcess::NormalExit || m_process.exitCode() != 0 ||
        m_process.error() == QProcess::FailedToStart || m_process.bytesAvailable() > 0) {
        fail();
    }
    // Somebody else may have taken the name meanwhile.
    if (!m_claims.claim(m_file)) {
        return false;
    }
    // A temporary file is its owner's alone.
    QFile::setPermissions(m_growing.fileName(), QFile::permissions(m_file));
    std::error_code failure;
    std::filesystem::rename(m_growing.fileName().toStdU16String(), m_file.toStdU16String(), failure);
    if (failure) {
        throw FileError(m_file, QString::fromStdString(failure.message()));
    }
    m_growing.setAutoRemove(false);
    m_claims.keep();
    return true;
}

void VideoSink::fail() {
    const QString said = QString::fromLocal8Bit(m_process.readAllStandardError()).trimmed();
    throw FileError(m_file, said.isEmpty() ? m_process.errorString() : said.section(QLatin1Char('\n'), -1));
}
