#include "CycleFailures.h"

#include <QDebug>

#include <utility>

void CycleFailures::failed(const QString& source, const QString& text) {
    if (text.isEmpty()) return;
    if (!m_failing.contains(text)) {
        m_new.append(text);
        qCritical() << text;
    }
    Failing& failing = m_failing[text];
    failing.sources.insert(source);
    ++failing.count;
}

void CycleFailures::whole(const QString& source) {
    for (auto failing = m_failing.begin(); failing != m_failing.end();) {
        if (failing->sources.remove(source) && failing->sources.isEmpty()) {
            qCritical() << failing.key() << "is over, met" << failing->count << "times.";
            failing = m_failing.erase(failing);
        } else {
            ++failing;
        }
    }
}

QString CycleFailures::takeNew() {
    return std::exchange(m_new, {}).join(QLatin1Char('\n'));
}
