#pragma once

#include <QObject>
#include <QSet>
#include <QThreadPool>

class Preferences;
class Translator;

/// What every page of the host sees as `app`. GUI thread.
class AppObject : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString style READ style)
    Q_PROPERTY(bool trying READ isTrying)

public:
    /// Both outlive the object.
    AppObject(const Preferences& prefs, const Translator& translator) : m_prefs(prefs), m_translator(translator) {}

    /// "light" or "dark".
    QString style() const;
    Q_INVOKABLE QString translate(const QString& text) const;
    /// Why files of a format, as "mp4", can't be written here, and why a video of that kind can't have a codec, as
    /// "H264", at so many frames a second: texts for the user, empty when it can. What is not known yet is tried, and
    /// such a text says so.
    Q_INVOKABLE QString formatFault(const QString& format) const;
    Q_INVOKABLE QString videoFault(const QString& kind, const QString& codec, double rate, bool isLossless);
    /// Whether more will be known. No signal tells it: a function of a page that is gone would hang on it.
    bool isTrying() const { return m_trying > 0; }

private:
    const Preferences& m_prefs;
    const Translator& m_translator;
    /// Kinds of video that were asked about, and how many of them are not known yet.
    QSet<QString> m_asked;
    int m_trying = 0;
    /// Ends before the rest does.
    QThreadPool m_trials;
};
