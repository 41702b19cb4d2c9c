#pragma once

#include <QStringList>

#include <stdexcept>

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
    /// One for all, a line for each.
    std::runtime_error error() const { return std::runtime_error(m_reasons.join(QLatin1Char('\n')).toStdString()); }

private:
    QStringList m_reasons;
};
