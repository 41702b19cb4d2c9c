#include "AppObject.h"

#include "Preferences.h"
#include "Translator.h"

QString AppObject::style() const {
    return m_prefs.value(QStringLiteral("env/style")).toString();
}

QString AppObject::translate(const QString& text) const {
    return m_translator.translate(text);
}
