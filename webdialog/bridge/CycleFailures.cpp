#include "CycleFailures.h"

#include <QDebug>

#include <algorithm>
#include <utility>

namespace {

/// Cycles after which nobody remembers what nobody asks any more.
constexpr int Memory = 1000;

}  // namespace

void CycleFailures::failed(const QString& source, const QString& text) {
    Failing& failing = m_failing[text];
    if (!failing.sources.contains(source) && !isMet(failing)) {
        m_new.append(text);
    }
    if (failing.count == 0) {
        qCritical() << text;
    }
    failing.sources[source] = m_cycle;
    ++failing.count;
}

void CycleFailures::answered(const QString& source) {
    for (auto failing = m_failing.begin(); failing != m_failing.end();) {
        if (failing->sources.remove(source) > 0 && failing->sources.isEmpty()) {
            end(failing.key(), *failing);
            failing = m_failing.erase(failing);
        } else {
            ++failing;
        }
    }
}

void CycleFailures::nextCycle() {
    ++m_cycle;
    for (auto failing = m_failing.begin(); failing != m_failing.end();) {
        if (!isMet(*failing)) {
            end(failing.key(), *failing);
        }
        const auto isRemembered = [this](int cycle) { return cycle > m_cycle - Memory; };
        const auto& sources = failing->sources;
        failing =
            std::any_of(sources.begin(), sources.end(), isRemembered) ? std::next(failing) : m_failing.erase(failing);
    }
}

bool CycleFailures::isEmpty() const {
    return std::none_of(m_failing.begin(), m_failing.end(), [](const Failing& failing) { return failing.count > 0; });
}

bool CycleFailures::isMet(const Failing& failing) const {
    return std::any_of(failing.sources.begin(), failing.sources.end(),
                       [this](int cycle) { return cycle >= m_cycle - 1; });
}

void CycleFailures::end(const QString& text, Failing& failing) {
    if (const int count = std::exchange(failing.count, 0)) {
        qCritical() << text << "is no longer met, after" << count << "times.";
    }
}

QString CycleFailures::takeNew() {
    return std::exchange(m_new, {}).join(QLatin1Char('\n'));
}
