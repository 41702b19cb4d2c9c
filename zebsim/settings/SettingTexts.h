#pragma once

#include <QString>
#include <QVariant>

class Translator;

/// Settings and their values in the user's language. GUI thread.
class SettingTexts {
public:
    /// Must outlive the object.
    explicit SettingTexts(const Translator& translator) : m_translator(translator) {}

    /// As "Frame rate" for "rate".
    QString label(const QString& setting) const;
    QString labels(const QStringList& settings) const;
    /// As "2000 fps"; of a long one only the beginning.
    QString value(const QString& setting, const QVariant& value) const;

private:
    QString whole(const QString& setting, const QVariant& value) const;
    QString plain(const QVariant& value) const;

    const Translator& m_translator;
};
