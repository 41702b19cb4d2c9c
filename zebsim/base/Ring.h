#pragma once

#include <QList>
#include <QtGlobal>

#include <algorithm>
#include <deque>
#include <mutex>

/// The newest entries of what comes one after the other. Any thread.
template <typename T>
class Ring {
public:
    /// Of so many entries the oldest are forgotten.
    explicit Ring(std::size_t capacity) : m_capacity(capacity) {}

    void add(T entry) {
        const std::lock_guard lock(m_mutex);
        m_entries.push_back(std::move(entry));
        ++m_count;
        if (m_entries.size() > m_capacity) {
            m_entries.pop_front();
        }
    }

    /// Number of entries ever added; a mark for `since`.
    quint64 count() const {
        const std::lock_guard lock(m_mutex);
        return m_count;
    }

    /// The entries added after the mark that are still there, oldest first.
    QList<T> since(quint64 mark) const {
        const std::lock_guard lock(m_mutex);
        const quint64 wanted = std::min<quint64>(m_count - std::min(mark, m_count), m_entries.size());
        QList<T> entries;
        std::copy(m_entries.end() - static_cast<std::ptrdiff_t>(wanted), m_entries.end(), std::back_inserter(entries));
        return entries;
    }

private:
    const std::size_t m_capacity;
    mutable std::mutex m_mutex;
    std::deque<T> m_entries;
    quint64 m_count = 0;
};
