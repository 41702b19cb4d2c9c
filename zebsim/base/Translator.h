#pragma once

#include <QStringList>
#include <QTranslator>

#include <memory>

/// The texts of host, pages and plug-in in the user's language. Installed in the application while it lives. GUI
/// thread.
class Translator {
public:
    /// Those that there is a catalogue for, as "en". Any thread.
    static QStringList languages();

    /// Takes the catalogue of a language, as "en"; false when there is none, and nothing has changed then.
    bool load(const QString& language);
    /// A text without a translation comes back as it is.
    QString translate(const QString& text) const;

private:
    std::unique_ptr<QTranslator> m_catalogue;
    /// Of Qt's own dialogs; it may be missing.
    std::unique_ptr<QTranslator> m_ofQt;
};
