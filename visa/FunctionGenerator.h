#pragma once

#include <QByteArray>
#include <QList>

/// A function generator as its remote control sees it: settings with their limits, questions, a queue of errors.
class FunctionGenerator {
public:
    FunctionGenerator() { reset(); }

    /// The answer to "*IDN?", without the line feed.
    void setIdentity(const QByteArray& identity) { m_identity = identity; }

    /// Takes commands and questions, each ended by a line feed or by the end of the text. A number out of range is
    /// brought to the nearest limit, what is not understood changes nothing; both are errors that "SYST:ERR?" tells.
    void take(const QByteArray& text);
    /// Puts `reply` in the place of the answer to the last question.
    void setReply(const QByteArray& reply) { m_reply = reply; }
    /// The answer to the last question, once; empty when there is none, which is an error.
    QByteArray reply();
    /// Hertz of what it puts out, 0 while its output is off.
    double signal() const;
    /// Forgets the answer.
    void clear() { m_reply.clear(); }

private:
    void takeMessage(const QByteArray& message);
    void command(const QByteArray& header, const QByteArray& argument);
    QByteArray answer(const QByteArray& header);
    QByteArray takeError();
    void reset();
    void report(const char* error);

    QByteArray m_identity = QByteArrayLiteral("Bench Instruments,33210A,SN00000001,1.00-1.00-1");
    /// As they are answered, in the order of the settings.
    QList<QByteArray> m_values;
    QList<QByteArray> m_errors;
    QByteArray m_reply;
};
