#pragma once

#include "ZebTypes.h"

#include <stdexcept>

/// A camera that did not do what it was asked: "<camera name>: <reason>".
class CameraError : public std::runtime_error {
public:
    CameraError(const QString& camera, const QString& reason)
        : std::runtime_error(QString(camera % QStringLiteral(": ") % reason).toStdString()), m_reason(reason) {}

    const QString& reason() const { return m_reason; }

private:
    QString m_reason;
};

/// A question that a camera did not answer. Comes again at every tick while the fault lasts.
class QueryError : public CameraError {
public:
    QueryError(const QString& camera, const QString& reason, DOCKEY key, const char* operation)
        : CameraError(camera, reason), m_key(key), m_operation(operation) {}

    DOCKEY key() const { return m_key; }
    /// A literal.
    const char* operation() const { return m_operation; }

private:
    DOCKEY m_key;
    const char* m_operation;
};
