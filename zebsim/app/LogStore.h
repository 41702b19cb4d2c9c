#pragma once

#include "host/Ring.h"

#include <QObject>
#include <QStringList>

/// The application's log: what goes through Qt's message logger while this lives. Any thread.
///
/// Warnings and failures also go to stderr.
class LogStore : public QObject {
    Q_OBJECT

public:
    /// Lines that are kept; older ones are forgotten.
    static constexpr int Capacity = 50000;

    LogStore();
    ~LogStore() override;

    /// Number of lines ever added; a mark for `since`.
    quint64 count() const { return m_lines.count(); }
    /// The lines after the mark, as they were logged.
    QStringList since(quint64 mark) const { return m_lines.since(mark); }

Q_SIGNALS:
    /// `prefixed` is the line with its time and level; raised on the thread that logged.
    void added(const QString& prefixed);

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);
    void add(QtMsgType type, const QString& text);

    Ring<QString> m_lines{Capacity};
};
