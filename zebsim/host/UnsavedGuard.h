#pragma once

#include "HeldRecordings.h"

#include <QStringList>

#include <functional>

class Preferences;
class Translator;

/// Asks before recordings are lost that nobody has saved, unless the preference `alert/unsavedrecording` is off. Who
/// refuses, or leaves the box, keeps them. What was given up, or kept, stands in the log. GUI thread.
class UnsavedGuard {
public:
    /// `ask` shows a question with a list and answers whether the user has agreed. All must outlive the guard.
    UnsavedGuard(const CameraBank& cameras, const Preferences& prefs, const Translator& translator,
                 std::function<bool(const QString& question, const QStringList& lines)> ask);

    /// As the preference tells.
    bool isOn() const;
    /// Whether the cameras that `toArm` tells may record over what they hold. It is asked again after each question,
    /// for cameras come and go while one stands.
    bool mayRecordOver(const std::function<DocKeyList()>& toArm) const;
    /// Whether the program may end.
    bool mayClose() const;
    /// A line for each of these recordings: camera, frames, and the partition where there are several.
    QStringList lines(const HeldRecordings& recordings) const;

private:
    /// `log` tells in the log what becomes of what was given up.
    bool mayLose(const QString& question, const char* log, const std::function<HeldRecordings()>& lost) const;

    const CameraBank& m_cameras;
    const Preferences& m_prefs;
    const Translator& m_translator;
    const std::function<bool(const QString&, const QStringList&)> m_ask;
};
