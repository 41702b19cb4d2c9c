#pragma once

#include "HeldRecordings.h"

#include <QStringList>

#include <functional>

class HostMessages;
class Preferences;
class Translator;

/// Asks before recordings are lost that nobody has saved, unless the preference `alert/unsavedrecording` is off. Who
/// refuses, or leaves the box, keeps them. What was given up, or kept, stands in the log. GUI thread.
class UnsavedGuard {
public:
    /// All must outlive the guard.
    UnsavedGuard(const CameraBank& cameras, const Preferences& prefs, const Translator& translator,
                 HostMessages& messages)
        : m_cameras(cameras), m_prefs(prefs), m_translator(translator), m_messages(messages) {}

    /// As the preference tells.
    bool isOn() const;
    /// Whether the cameras that `toArm` tells may record over what they hold. It is asked again after each question,
    /// for cameras come and go while one stands.
    bool mayRecordOver(const std::function<DocKeyList()>& toArm) const;
    /// Whether the program may end.
    bool mayClose() const;
    /// Whether other cameras may take the place of these.
    bool mayReplace() const;
    /// A line for each of these recordings: camera, frames, and the partition where there are several.
    QStringList lines(const HeldRecordings& recordings) const;

private:
    /// `log` tells in the log what becomes of what was given up.
    bool mayLose(const QString& question, const char* log, const std::function<HeldRecordings()>& lost) const;

    const CameraBank& m_cameras;
    const Preferences& m_prefs;
    const Translator& m_translator;
    HostMessages& m_messages;
};
