#include "VideoEncoder.h"

#include "FileMetadata.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

namespace {

constexpr int AnswerMs = 10000;
/// Frames that a video shows in a second, whatever rate they were recorded at.
const QString ShownRate = QStringLiteral("30");

}  // namespace

QStringList VideoEncoder::arguments(const QSize& size, const QString& file, const FileMetadata& metadata) const {
    const QString sides = QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    QStringList arguments = {
        "-hide_banner", "-loglevel", "error", "-y",
        // What comes in.
        "-f", "rawvideo", "-pix_fmt", "bgr0", "-video_size", sides, "-framerate", ShownRate, "-i", "-",
        // Colours are stored for two by two pixels, so sides must be even.
        "-vf", "pad=ceil(iw/2)*2:ceil(ih/2)*2", "-pix_fmt", "yuv420p", "-c:v", encoder, "-q:v", "3", "-f", "mp4",
        // Names that the format does not know are kept too.
        "-movflags", "use_metadata_tags", "-metadata", "comment=" % QLatin1String(metadata.description)};
    for (const auto& [name, value] : metadata.tags) {
        arguments << QStringLiteral("-metadata") << name % QLatin1Char('=') % value;
    }
    // A name is not to be taken for an address.
    return arguments << QStringLiteral("file:") % file;
}

VideoEncoder VideoEncoder::of(const QString& program) {
    VideoEncoder answer{program, {}};
    if (program.isEmpty()) {
        return answer;
    }
    QProcess asked;
    asked.start(program, {QStringLiteral("-hide_banner"), QStringLiteral("-encoders")}, QIODevice::ReadOnly);
    asked.waitForFinished(AnswerMs);
    const QString list = QString::fromLocal8Bit(asked.readAllStandardOutput());
    for (const char* name : {"libx264", "mpeg4"}) {
        const QRegularExpression line(QStringLiteral("^ V\\S+ %1 ").arg(QLatin1String(name)),
                                      QRegularExpression::MultilineOption);
        if (answer.encoder.isEmpty() && line.match(list).hasMatch()) {
            answer.encoder = QLatin1String(name);
        }
    }
    return answer;
}

const VideoEncoder& VideoEncoder::installed() {
    static const VideoEncoder encoder = of(QStandardPaths::findExecutable(QStringLiteral("ffmpeg")));
    return encoder;
}
