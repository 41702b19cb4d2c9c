#pragma once

#include <QString>
#include <QStringList>

#include <ostream>

/// How a failed comparison shows a text.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << text.toStdString();
}

/// What happened in a test, host calls and log lines in one order. While a journal lives it takes the log.
class Journal {
public:
    Journal();
    ~Journal();
    Q_DISABLE_COPY(Journal)

    /// One more entry. Without a living journal it is dropped.
    static void note(const QString& entry);
    /// The entries since the last asking.
    QStringList take();

private:
    QStringList m_entries;
};
