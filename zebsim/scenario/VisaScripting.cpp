#include "VisaScripting.h"

#include "ScenarioError.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

VisaScripting::~VisaScripting() {
    if (m_isUsed) {
        release();
    }
}

void VisaScripting::script(const QVariantMap& members) {
    const QByteArray text = QJsonDocument(QJsonObject::fromVariantMap(members)).toJson(QJsonDocument::Compact);
    const char* fault = find<const char* (*)(const char*)>("visaScript")(text.constData());
    if (fault != nullptr) {
        throw ScenarioError(QString::fromUtf8(fault));
    }
}

QVariantList VisaScripting::takeCalls() {
    return QJsonDocument::fromJson(find<const char* (*)()>("visaJournal")()).array().toVariantList();
}

void VisaScripting::release() {
    find<void (*)()>("visaRelease")();
}

template <typename Function>
Function VisaScripting::find(const char* name) {
    m_isUsed = m_library.load();
    if (!m_isUsed) {
        throw ScenarioError(QStringLiteral("there is no scripted VISA library: ") % m_library.errorString());
    }
    const auto function = reinterpret_cast<Function>(m_library.resolve(name));
    if (function == nullptr) {
        throw ScenarioError(QStringLiteral("the VISA library exports no ") % QLatin1String(name));
    }
    return function;
}
