#pragma once

#include "VideoEncoder.h"
#include "VideoFormats.h"

#include <QString>

#include <future>
#include <map>
#include <mutex>
#include <optional>

/// What the program that makes videos really takes: it is found out by making small ones and counting their frames,
/// each kind once. Any thread.
class VideoTrials {
public:
    explicit VideoTrials(VideoEncoder encoder) : m_encoder(std::move(encoder)) {}

    /// Why no video of the format `container`, as "mp4", can be made so, in the user's language; empty when it can. It
    /// takes some tenths of a second when nobody has tried it yet, and some seconds when the program does not answer.
    QString fault(const QString& container, const VideoOptions& options);
    /// The same without waiting; nothing while it is not known.
    std::optional<QString> knownFault(const QString& container, const VideoOptions& options);
    /// Why no video of that format can be made at all, as far as it is known.
    QString formatFault(const QString& container);

    /// Those of the program of this machine.
    static VideoTrials& installed();

private:
    enum Outcome { Made, Refused, FramesLost, NoAnswer };

    /// Whether the program has it, as far as it is known.
    bool hasEncoder(const QString& name) const;
    void askForEncoders();
    static QString keyOf(const QString& container, const VideoOptions& options);
    Outcome outcomeOf(const QString& container, const VideoOptions& options);
    Outcome run(const QString& container, const VideoOptions& options) const;

    const VideoEncoder m_encoder;
    std::mutex m_mutex;
    std::map<QString, std::shared_future<Outcome>> m_outcomes;
    std::optional<QString> m_encoders;
};
