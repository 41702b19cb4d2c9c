#pragma once

#include <QObject>

class Preferences;
class Translator;

/// What every page of the host sees as `app`. GUI thread.
class AppObject : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString style READ style)

public:
    /// Both outlive the object.
    AppObject(const Preferences& prefs, const Translator& translator) : m_prefs(prefs), m_translator(translator) {}

    /// "light" or "dark".
    QString style() const;
    Q_INVOKABLE QString translate(const QString& text) const;

private:
    const Preferences& m_prefs;
    const Translator& m_translator;
};
