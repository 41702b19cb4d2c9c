#include "host/AppObject.h"

#include "host/Preferences.h"
#include "host/Translator.h"

QString AppObject::style() const {
    return m_prefs.value(QStringLiteral("env/style")).toString();
}

QString AppObject::translate(const QString& text) const {
    return m_translator.translate(text);
}
