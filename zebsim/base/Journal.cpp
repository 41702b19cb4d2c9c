#include "Journal.h"

void Journal::record(const char* call, const QVariantList& args) {
    if (!m_enabled) {
        return;
    }
    const QString name = QString::fromLatin1(call);
    m_calls.add(QVariantMap{{QStringLiteral("call"), name}, {QStringLiteral("args"), args}});
    Q_EMIT recorded(name, args);
}

QVariant Journal::keyList(const DocKeyList& keys) {
    QVariantList list;
    for (const DOCKEY key : keys) {
        list.append(key);
    }
    return list;
}

void Journal::setEnabled(bool enabled) {
    m_enabled = enabled;
}
