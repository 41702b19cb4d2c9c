#pragma once

#include <QString>
#include <QStringList>

#include <sys/types.h>

#include <chrono>

class StopSource;

/// A program that is fed through its standard input. Unlike a `QProcess` it belongs to no thread, so that one after the
/// other may feed it. When it is destroyed before its end, it is killed.
class EncoderProcess {
public:
    static constexpr std::chrono::seconds NoLimit = std::chrono::hours(24 * 365);

    /// One that can't be started fails at the first write. Waits end when `stop` is stopped, which must outlive it, and
    /// when it has run for `limit`.
    EncoderProcess(const QString& program, const QStringList& arguments, const StopSource& stop,
                   std::chrono::seconds limit = NoLimit);
    ~EncoderProcess();
    EncoderProcess(const EncoderProcess&) = delete;
    EncoderProcess& operator=(const EncoderProcess&) = delete;

    /// Waits until it has taken them; false when it takes no more.
    bool write(const char* bytes, qint64 size);
    /// There is nothing more to come; waits for its end. False unless it ended well and without a word.
    bool finish();
    /// The last that it has said of what went wrong, else what the system says, as a text that may be translated.
    QString complaint() const;
    /// All that it has written to its standard output.
    QString answer() const;
    /// Whether it has run for longer than it may.
    bool isLate() const;

private:
    void start(const QString& program, const QStringList& arguments, int input);
    bool isGivenUp() const;
    QString said() const;

    const StopSource& m_stop;
    const std::chrono::steady_clock::time_point m_latest;
    /// Where it is fed, what it answers, and what it says of itself, as descriptors.
    int m_input = -1;
    int m_answer = -1;
    int m_said = -1;
    pid_t m_id = -1;
    int m_error = 0;
};
