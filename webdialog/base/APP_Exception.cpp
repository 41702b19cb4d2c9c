#include "APP_Exception.h"

#include "TraceText.h"

#include <QDebug>

APP_Exception::APP_Exception(const QString& message, int code)
    : std::runtime_error(message.toStdString()), m_errorCode(code) {
    qCritical() << QString(QLatin1String("APP_Exception:") % traceText({{"message", message}, {"errorCode", code}}));
}
