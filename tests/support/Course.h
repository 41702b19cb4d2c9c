#pragma once

#include <QMutex>
#include <QString>
#include <QStringList>

#include <ostream>

/// How a failed comparison shows texts.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList& list, std::ostream* out) {
    *out << '\n' << list.join(QLatin1Char('\n')).toStdString() << '\n';
}

/// The course of a test: lines of the log and what is noted, in one order. While a course lives it takes the log. Notes
/// may come on any thread.
class Course {
public:
    Course();
    ~Course();
    Q_DISABLE_COPY(Course)

    /// One more entry. Without a living course it is dropped.
    static void note(const QString& entry);
    /// The entries since the last asking.
    QStringList take();

private:
    QMutex m_mutex;
    QStringList m_entries;
};
