#include "Translator.h"

#include <QCoreApplication>
#include <QLibraryInfo>

QStringList Translator::languages() {
    return QStringLiteral(LANGUAGES).split(QLatin1Char(','));
}

bool Translator::load(const QString& language) {
    auto catalogue = std::make_unique<QTranslator>();
    if (!catalogue->load(QStringLiteral(":/i18n/zeb4_%1.qm").arg(language))) {
        return false;
    }
    // One that is deleted takes itself out of the application.
    m_catalogue = std::move(catalogue);
    m_ofQt = std::make_unique<QTranslator>();
    if (m_ofQt->load(QStringLiteral("qtbase_") % language, QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(m_ofQt.get());
    }
    return QCoreApplication::installTranslator(m_catalogue.get());
}

QString Translator::translate(const QString& text) const {
    return QCoreApplication::translate("zeb4", text.toUtf8().constData());
}
