#include "host/Translator.h"

#include <QCoreApplication>

Translator::~Translator() {
    QCoreApplication::removeTranslator(&m_catalogue);
}

bool Translator::load(const QString& language) {
    QCoreApplication::removeTranslator(&m_catalogue);
    const bool loaded = m_catalogue.load(QStringLiteral(":/i18n/zeb4_%1.qm").arg(language));
    return loaded && QCoreApplication::installTranslator(&m_catalogue);
}

QString Translator::translate(const QString& text) const {
    return QCoreApplication::translate("zeb4", text.toUtf8().constData());
}
