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
