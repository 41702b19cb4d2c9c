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
    failing.sources[source] = m_cycle;
    ++failing.count;
}

void CycleFailures::whole(const QString& source) {
    drop([&source](const Sources::iterator& each) { return each.key() == source; });
}

void CycleFailures::nextCycle() {
    ++m_cycle;
    drop([this](const Sources::iterator& each) { return each.value() < m_cycle - 1; });
}

template <typename IsOver>
void CycleFailures::drop(IsOver&& isOver) {
    for (auto failing = m_failing.begin(); failing != m_failing.end();) {
        for (auto source = failing->sources.begin(); source != failing->sources.end();)
            source = isOver(source) ? failing->sources.erase(source) : std::next(source);
        if (failing->sources.isEmpty()) {
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
