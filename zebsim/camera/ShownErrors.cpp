#include "camera/ShownErrors.h"

bool ShownErrors::showNow(const QueryError& error) {
    const std::lock_guard lock(m_mutex);
    const auto question = qMakePair(error.key(), QByteArray(error.operation()));
    const bool shown = m_shown.contains(question);
    m_shown.insert(question);
    m_any = true;
    return !shown;
}

void ShownErrors::answered(DOCKEY key, const char* operation) {
    if (!m_any) {
        return;
    }
    const std::lock_guard lock(m_mutex);
    m_shown.remove(qMakePair(key, QByteArray(operation)));
    m_any = !m_shown.isEmpty();
}

void ShownErrors::clear() {
    const std::lock_guard lock(m_mutex);
    m_shown.clear();
    m_any = false;
}
