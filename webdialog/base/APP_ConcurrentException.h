#pragma once

#include "APP_Exception.h"

#include <QException>

/// Carries an `APP_Exception` from a worker through a `QFuture` to the thread that asks for its result.
class APP_ConcurrentException : public QException {
public:
    // NOLINTNEXTLINE(bugprone-throw-keyword-missing): a member is made, nothing is to be thrown
    explicit APP_ConcurrentException(const APP_Exception& inner) : m_inner(inner) {}

    const APP_Exception& inner() const { return m_inner; }
    const char* what() const noexcept override { return m_inner.what(); }

    void raise() const override;
    APP_ConcurrentException* clone() const override;

private:
    APP_Exception m_inner;
};
