#include "host/Journal.h"

void Journal::record(const char* call, const QVariantList& args) {
    if (!m_enabled) {
        return;
    }
    const QString name = QString::fromLatin1(call);
    {
        const std::lock_guard lock(m_mutex);
        m_calls.push_back({{QStringLiteral("call"), name}, {QStringLiteral("args"), args}});
        ++m_count;
        if (m_calls.size() > Capacity) {
            m_calls.pop_front();
        }
    }
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

quint64 Journal::count() const {
    const std::lock_guard lock(m_mutex);
    return m_count;
}

QVariantList Journal::since(quint64 mark) const {
    const std::lock_guard lock(m_mutex);
    const quint64 oldest = m_count - m_calls.size();
    QVariantList calls;
    for (quint64 i = qMax(mark, oldest); i < m_count; ++i) {
        calls.append(m_calls[static_cast<std::size_t>(i - oldest)]);
    }
    return calls;
}
