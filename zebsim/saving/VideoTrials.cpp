#include "VideoTrials.h"

#include "FileMetadata.h"
#include "StopSource.h"
#include "UiText.h"

#include <QLocale>
#include <QRegularExpression>

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <random>

namespace {

constexpr std::chrono::seconds AnswerTime(10);
/// Odd sides are harder. Where a codec takes another rate, so many frames become more or fewer.
constexpr QSize Size{33, 31};
constexpr int Frames = 240;

/// A file in memory, which another program finds by a path.
class MemoryFile {
public:
    MemoryFile() : m_descriptor(::memfd_create("trial", MFD_CLOEXEC)) {}
    ~MemoryFile() { ::close(m_descriptor); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    QString path() const { return QStringLiteral("/proc/%1/fd/%2").arg(::getpid()).arg(m_descriptor); }

private:
    const int m_descriptor;
};

QByteArray noise() {
    QByteArray bytes(4 * Size.width() * Size.height(), Qt::Uninitialized);
    std::mt19937 random(1);
    std::generate(bytes.begin(), bytes.end(), [&random] { return char(random()); });
    return bytes;
}

VideoOptions atUsualRate(VideoOptions options) {
    options.rate = VideoOptions::UsualRate;
    return options;
}

}  // namespace

QString VideoTrials::fault(const QString& container, const VideoOptions& options) {
    const VideoCodec codec = options.used();
    if (m_encoder.program.isEmpty()) {
        return uiText("Video needs the program ffmpeg, which is not installed.");
    }
    askForEncoders();
    if (const std::lock_guard lock(m_mutex); !hasEncoder(codec.encoder)) {
        return uiText("The installed ffmpeg has no encoder %1, which %2 needs.").arg(codec.encoder, codec.name);
    }
    const Outcome atUsual = outcomeOf(container, atUsualRate(options));
    const Outcome outcome = atUsual == Made ? outcomeOf(container, options) : atUsual;
    if (outcome == Made) {
        return {};
    }
    if (outcome == NoAnswer) {
        return uiText("The installed ffmpeg does not answer.");
    }
    if (atUsual != Made) {
        return uiText("The installed ffmpeg makes no %1 files with %2.").arg(container.toUpper(), codec.name);
    }
    return uiText("%1 in %2 files does not keep all frames at %3 frames a second.")
        .arg(codec.name, container.toUpper(), QLocale().toString(options.rate, 'g', 8));
}

std::optional<QString> VideoTrials::knownFault(const QString& container, const VideoOptions& options) {
    {
        const std::lock_guard lock(m_mutex);
        const auto isTried = [&](const VideoOptions& tried) {
            const auto outcome = m_outcomes.find(keyOf(container, tried));
            return outcome != m_outcomes.end() &&
                   outcome->second.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
        };
        const VideoOptions usual = atUsualRate(options);
        const bool isRefused = isTried(usual) && m_outcomes.at(keyOf(container, usual)).get() != Made;
        const bool isKnown =
            m_encoders && (!hasEncoder(options.used().encoder) || isRefused || (isTried(usual) && isTried(options)));
        if (!m_encoder.program.isEmpty() && !isKnown) {
            return std::nullopt;
        }
    }
    return fault(container, options);
}

QString VideoTrials::formatFault(const QString& container) {
    QString fault;
    for (const VideoCodec& codec : videoCodecs()) {
        VideoOptions options;
        options.codec = codec.name;
        fault = knownFault(container, options).value_or(QString());
        if (fault.isEmpty()) {
            break;
        }
    }
    return fault;
}

VideoTrials& VideoTrials::installed() {
    static VideoTrials trials(VideoEncoder::installed());
    return trials;
}

void VideoTrials::askForEncoders() {
    const std::lock_guard lock(m_mutex);
    if (!m_encoders) {
        const StopSource never;
        EncoderProcess asked(m_encoder.program, {"-hide_banner", "-encoders"}, never, AnswerTime);
        asked.finish();
        m_encoders = asked.answer();
    }
}

bool VideoTrials::hasEncoder(const QString& name) const {
    // One that tells nothing is tried.
    const QRegularExpression line(QStringLiteral("^\\s*V\\S+ %1 ").arg(name), QRegularExpression::MultilineOption);
    return m_encoders->isEmpty() || line.match(*m_encoders).hasMatch();
}

QString VideoTrials::keyOf(const QString& container, const VideoOptions& options) {
    return QStringList{container, options.used().encoder, options.rateText()}.join(QLatin1Char(' '));
}

VideoTrials::Outcome VideoTrials::outcomeOf(const QString& container, const VideoOptions& options) {
    const QString key = keyOf(container, options);
    std::promise<Outcome> own;
    {
        std::unique_lock lock(m_mutex);
        const auto [known, isNew] = m_outcomes.try_emplace(key);
        if (!isNew) {
            const std::shared_future<Outcome> outcome = known->second;
            lock.unlock();
            return outcome.get();
        }
        known->second = own.get_future().share();
    }
    const Outcome outcome = run(container, options);
    own.set_value(outcome);
    return outcome;
}

VideoTrials::Outcome VideoTrials::run(const QString& container, const VideoOptions& options) const {
    static const QByteArray frame = noise();
    const StopSource never;
    const MemoryFile file;
    VideoOptions quick = options;
    quick.preset = QStringLiteral("ultrafast");
    EncoderProcess process(m_encoder.program, m_encoder.arguments(Size, file.path(), container, quick, {}), never,
                           AnswerTime);
    bool isTaken = true;
    for (int i = 0; i < Frames && isTaken; ++i) {
        isTaken = process.write(frame.constData(), frame.size());
    }
    const bool isMade = process.finish() && isTaken;
    return process.isLate()                                               ? NoAnswer
           : !isMade                                                      ? Refused
           : m_encoder.framesIn(file.path(), never, AnswerTime) == Frames ? Made
                                                                          : FramesLost;
}
