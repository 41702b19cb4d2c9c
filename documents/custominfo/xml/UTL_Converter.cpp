#include "UTL_Converter.h"

#include "CustomInfoBounds.h"
#include "CustomInfoReader.h"
#include "CustomInfoWriter.h"
#include "UTL_Exception.h"
#include "WholeFile.h"

#include <QDebug>
#include <QFile>

namespace {

UTL_Exception failure(const QString& path, const QString& reason, UTL_Converter::Failure code) {
    const QString text = path % QLatin1String(": ") % reason;
    return UTL_Exception(text, code);
}

void logNotOpened(const char* function, const QString& reason) {
    qCritical() << function << "QFile::Open"
                << "errorCode" << reason;
}

}  // namespace

void UTL_Converter::xml2CustomInfo(const QString& path, QList<QVariantMap>& list, const CustomInfoDialect& dialect) {
    QFile file(path);
    QString reason = whyNoPlainFile(path);
    if (!reason.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        reason = reason.isEmpty() ? file.errorString() : reason;
        logNotOpened("UTL_Converter::xml2CustomInfo", reason);
        throw failure(path, reason, NotOpened);
    }
    // One byte more than is taken tells that there is more.
    const QByteArray bytes = file.read(CustomInfoBounds::FileBytes + 1);
    if (file.error() != QFileDevice::NoError) {
        logNotOpened("UTL_Converter::xml2CustomInfo", file.errorString());
        throw failure(path, file.errorString(), NotOpened);
    }
    const CustomInfoReading reading = readCustomInfo(bytes, dialect);
    if (!reading.reason.isEmpty()) {
        qCritical() << "No custom information in" << path << "line" << reading.line << "column" << reading.column
                    << reading.reason;
        throw failure(path, reading.reason, NotDone);
    }
    list = reading.items;
}

void UTL_Converter::customInfo2xml(const QList<QVariantMap>& list, const QString& path, const QString& version,
                                   const CustomInfoDialect& dialect) {
    const CustomInfoWriting writing = writeCustomInfo(list, version, dialect);
    if (!writing.reason.isEmpty()) {
        throw failure(path, writing.reason, NotDone);
    }
    bool isOpened = false;
    const QString reason = writeWholeFile(path, writing.bytes, &isOpened);
    if (reason.isEmpty()) {
        return;
    }
    if (!isOpened) {
        logNotOpened("UTL_Converter::customInfo2xml", reason);
    }
    throw failure(path, reason, isOpened ? NotDone : NotOpened);
}
