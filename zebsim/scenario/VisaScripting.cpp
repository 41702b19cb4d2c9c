#include "VisaScripting.h"

#include "ScenarioError.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

VisaScripting::VisaScripting()
    : m_library(QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("visa64.dll"))) {}

VisaScripting::~VisaScripting() {
    if (m_library.isLoaded()) release();
}

void VisaScripting::script(const QVariantMap& members) {
    const QByteArray text = QJsonDocument(QJsonObject::fromVariantMap(members)).toJson(QJsonDocument::Compact);
    const char* fault = find<const char* (*)(const char*)>("visaScript")(text.constData());
    if (fault != nullptr) throw ScenarioError(QString::fromUtf8(fault));
}

QVariantList VisaScripting::takeCalls() {
    return QJsonDocument::fromJson(find<const char* (*)()>("visaJournal")()).array().toVariantList();
}

void VisaScripting::release() {
    find<void (*)()>("visaRelease")();
}

template <typename Function>
Function VisaScripting::find(const char* name) {
    if (!m_library.load())
        throw ScenarioError(QStringLiteral("there is no scripted VISA library: ") % m_library.errorString());
    const auto function = reinterpret_cast<Function>(m_library.resolve(name));
    if (function == nullptr)
        throw ScenarioError(
            QStringLiteral("%1 can't be scripted, it exports no %2").arg(m_library.fileName(), QLatin1String(name)));
    return function;
}
