#include "DOC_FileException.h"

#include "TraceText.h"

#include <QDebug>

DOC_FileException::DOC_FileException(const QString& message, const QString& path, int code)
    : DOC_Exception(message, code) {
    qCritical() << QString(QStringLiteral("DOC_FileException:") % traceArg(QStringLiteral("message"), message) %
                           traceArg(QStringLiteral("path"), path) % traceArg(QStringLiteral("errorCode"), code));
}
