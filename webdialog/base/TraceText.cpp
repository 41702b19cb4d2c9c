#include "TraceText.h"

#include <QDebug>
#include <QObject>

QString traceArg(const QString& key, const QVariant& value) {
    return QLatin1Char('[') % key % QLatin1Char(':') % value.toString() % QStringLiteral("] ");
}

void logEnter(const QString& name, const QString& args) {
    qInfo() << "[ENTER]" << name << args;
}

void logLeave(const QString& name) {
    qInfo() << "[LEAVE]" << name;
}

void logUserOperation(const QString& url, const QString& operation, const QString& control, const QString& id,
                      const QString& className, const QVariant& value) {
    const bool byClass = id.isEmpty() && !className.isEmpty();
    const QString identifier =
        byClass ? traceArg(QStringLiteral("Class"), className) : traceArg(QStringLiteral("ID"), id);
    qInfo() << "[USER]"
            << QString(traceArg(QStringLiteral("URL"), url) % identifier %
                       traceArg(QStringLiteral("Control"), control) % traceArg(QStringLiteral("Operation"), operation) %
                       traceArg(QStringLiteral("Value"), value));
}

void logUserClose(const QObject& window) {
    logUserOperation(QString::fromLatin1(window.metaObject()->className()), QStringLiteral("clicked"),
                     QStringLiteral("Button"), QStringLiteral("close"), QString(), QVariant());
}

void logUserError(const QString& message) {
    qCritical() << "[USER][ERROR]" << message;
}
