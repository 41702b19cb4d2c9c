#pragma once

#include <QString>

#include <stdexcept>

/// Base of all failures. Its construction writes the failure to the log; a copy writes nothing. Any thread.
class APP_Exception : public std::runtime_error {
public:
    /// `message` is for the user; an empty one ends an operation without a message box.
    explicit APP_Exception(const QString& message, int code = 0);

    int errorCode() const { return m_errorCode; }

private:
    int m_errorCode;
};
