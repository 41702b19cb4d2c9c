#pragma once

#include "Ring.h"

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
    /// The lines after the mark, as they were logged. What is logged is one line, whatever stands in it.
    QStringList since(quint64 mark) const;
    /// All lines that are kept, each with its time and level.
    QStringList prefixed() const;

Q_SIGNALS:
    /// As in `prefixed`; raised on the thread that logged.
    void added(const QString& prefixed);

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);
    void add(QtMsgType type, const QString& text);

    struct Line {
        /// Time and level, with the blank behind them.
        QString prefix;
        QString text;
    };

    Ring<Line> m_lines{Capacity};
};
