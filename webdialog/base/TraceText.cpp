#include "TraceText.h"

#include <QDebug>
#include <QObject>

QString traceText(TraceArgs args) {
    QString text;
    for (const TraceArg& arg : args) {
        text +=
            QLatin1Char('[') % QLatin1String(arg.name) % QLatin1Char(':') % arg.value.toString() % QLatin1String("] ");
    }
    return text;
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
    qInfo() << "[USER]"
            << traceText({{"URL", url},
                          byClass ? TraceArg{"Class", className} : TraceArg{"ID", id},
                          {"Control", control},
                          {"Operation", operation},
                          {"Value", value}});
}

void logUserClose(const QObject& window) {
    logUserOperation(QString::fromLatin1(window.metaObject()->className()), QStringLiteral("clicked"),
                     QStringLiteral("Button"), QStringLiteral("close"), QString(), QVariant());
}

void logUserError(const QString& message) {
    qCritical() << "[USER][ERROR]" << message;
}
