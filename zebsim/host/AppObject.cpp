#include "AppObject.h"

#include "Preferences.h"
#include "SaveOrders.h"
#include "Translator.h"
#include "VideoTrials.h"

QString AppObject::style() const {
    return m_prefs.value(QStringLiteral("env/style")).toString();
}

QString AppObject::translate(const QString& text) const {
    return m_translator.translate(text);
}

QString AppObject::formatFault(const QString& format) const {
    return ::formatFault(format);
}

QString AppObject::videoFault(const QString& kind, const QString& codec, double rate, bool isLossless) const {
    return ::videoFault(kind, codec, rate, isLossless);
}
