#include "VideoTrials.h"

#include "FileMetadata.h"
#include "StopSource.h"
#include "Threads.h"
#include "UiText.h"

#include <QLocale>
#include <QRegularExpression>

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <random>

namespace {

constexpr std::chrono::seconds AnswerTime(10);
/// Odd sides are harder. Where a codec takes another rate, so many frames become more or fewer.
constexpr QSize Size{33, 31};
constexpr int Frames = 240;
const QStringList Containers{"avi", "mov", "mp4"};

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

}  // namespace

QString VideoTrials::fault(const QString& container, const VideoOptions& options) {
    const VideoCodec codec = options.used();
    if (m_encoder.program.isEmpty()) {
        return uiText("Video needs the program ffmpeg, which is not installed.");
    }
    if (!hasEncoder(codec.encoder)) {
        return uiText("The installed ffmpeg has no encoder %1, which %2 needs.").arg(codec.encoder, codec.name);
    }
    VideoOptions usual = options;
    usual.rate = VideoOptions::UsualRate;
    const Outcome atUsual = outcomeOf(container, usual);
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

void VideoTrials::tryAll() {
    std::atomic<int> next{0};
    const int pairs = Containers.size() * videoCodecs().size();
    const auto work = [&] {
        for (int pair = next++; pair < pairs; pair = next++) {
            VideoOptions options;
            options.codec = videoCodecs().at(pair / Containers.size()).name;
            fault(Containers.at(pair % Containers.size()), options);
        }
    };
    auto others = startThreads(std::max(1U, std::thread::hardware_concurrency()) - 1, work);
    work();
    join(others);
}

VideoTrials& VideoTrials::installed() {
    static VideoTrials trials(VideoEncoder::installed());
    return trials;
}

bool VideoTrials::hasEncoder(const QString& name) {
    const std::lock_guard lock(m_mutex);
    if (!m_encoders) {
        const StopSource never;
        EncoderProcess asked(m_encoder.program, {"-hide_banner", "-encoders"}, never, AnswerTime);
        asked.finish();
        m_encoders = asked.answer();
    }
    // One that tells nothing is tried.
    const QRegularExpression line(QStringLiteral("^\\s*V\\S+ %1 ").arg(name), QRegularExpression::MultilineOption);
    return m_encoders->isEmpty() || line.match(*m_encoders).hasMatch();
}

VideoTrials::Outcome VideoTrials::outcomeOf(const QString& container, const VideoOptions& options) {
    const QString key = QStringList{container, options.used().encoder, options.rateText()}.join(QLatin1Char(' '));
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

QString videoFault(const QString& container, const QString& codec, double rate, bool isLossless) {
    VideoOptions options;
    options.codec = codec;
    options.rate = rate;
    options.isLossless = isLossless;
    return VideoTrials::installed().fault(container, options);
}
