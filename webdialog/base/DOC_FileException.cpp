#include "DOC_FileException.h"

#include "TraceText.h"

#include <QDebug>

DOC_FileException::DOC_FileException(const QString& message, const QString& path, int code)
    : DOC_Exception(message, code) {
    qCritical() << QString(QLatin1String("DOC_FileException:") %
                           traceText({{"message", message}, {"path", path}, {"errorCode", code}}));
}
