#pragma once

#include <QStringList>

#include <exception>

/// Work on many cameras whose failures are gathered.
class Failures {
public:
    template <typename Work>
    void attempt(Work work) {
        try {
            work();
        } catch (const std::exception& e) {
            m_reasons.append(QString::fromUtf8(e.what()));
        }
    }

    bool any() const { return !m_reasons.isEmpty(); }
    /// A line for each.
    QString text() const { return m_reasons.join(QLatin1Char('\n')); }

private:
    QStringList m_reasons;
};
