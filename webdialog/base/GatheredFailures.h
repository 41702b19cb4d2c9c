#pragma once

#include <QStringList>

/// Steps of which none keeps the others from being done, and what went wrong in them. Any thread, one at a time.
class GatheredFailures {
public:
    template <typename Step>
    void attempt(Step&& step) {
        try {
            step();
        } catch (...) {
            noteCurrent();
        }
    }

    /// Keeps a text of one line or more.
    void note(const QString& text);
    /// Keeps the exception that is being handled. Only inside a `catch`.
    void noteCurrent();

    bool isEmpty() const { return m_texts.isEmpty(); }
    /// The texts, each once, in the order in which they came.
    const QStringList& lines() const { return m_texts; }
    /// The same as one text, a line each.
    QString text() const { return m_texts.join(QLatin1Char('\n')); }
    /// A line of the log for each.
    void log() const;
    /// Throws them as one `std::runtime_error`, if there are any.
    void rethrow() const;

private:
    QStringList m_texts;
};
