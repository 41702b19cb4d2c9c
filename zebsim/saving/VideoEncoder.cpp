#include "VideoEncoder.h"

#include "FileMetadata.h"
#include "VideoFormats.h"

#include <QStandardPaths>

namespace {

/// A name is not to be taken for an address.
QString addressOf(const QString& file) {
    return QStringLiteral("file:") % file;
}

}  // namespace

QStringList VideoEncoder::arguments(const QSize& size, const QString& file, const QString& container,
                                    const VideoOptions& options, const FileMetadata& metadata) const {
    const QString sides = QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    QStringList arguments = {"-hide_banner", "-loglevel", "error",       "-y",  "-f",         "rawvideo",
                             "-pix_fmt",     "bgr0",      "-video_size", sides, "-framerate", options.rateText(),
                             "-i",           "-"};
    arguments += options.arguments(container);
    arguments << QStringLiteral("-metadata") << "comment=" % QLatin1String(metadata.description);
    for (const auto& [name, value] : metadata.tags) {
        arguments << QStringLiteral("-metadata") << name % QLatin1Char('=') % value;
    }
    return arguments << addressOf(file);
}

std::optional<int> VideoEncoder::framesIn(const QString& file, const StopSource& stop,
                                          std::chrono::seconds limit) const {
    // It tells how far it is, and at last how far it has come.
    EncoderProcess reading(program,
                           {"-hide_banner", "-loglevel", "error", "-i", addressOf(file), "-map", "0:v:0", "-c", "copy",
                            "-f", "null", "-nostats", "-progress", "pipe:1", "-"},
                           stop, limit);
    reading.finish();
    const QStringList told = reading.answer().split(QLatin1Char('\n')).filter(QStringLiteral("frame="));
    bool isNumber = false;
    const int frames = told.isEmpty() ? 0 : told.last().section(QLatin1Char('='), 1).toInt(&isNumber);
    return isNumber ? std::optional(frames) : std::nullopt;
}

const VideoEncoder& VideoEncoder::installed() {
    static const VideoEncoder encoder{QStandardPaths::findExecutable(QStringLiteral("ffmpeg"))};
    return encoder;
}
