#pragma once

#include <QString>
#include <QVariant>

#include <initializer_list>

class QObject;

/// An argument of a log line.
struct TraceArg {
    const char* name;
    QVariant value;
};
using TraceArgs = std::initializer_list<TraceArg>;

/// `[name:value] ` of each, one behind the other.
QString traceText(TraceArgs args);

/// The lines at the start and the end of a traced method.
void logEnter(const QString& name, const QString& args);
void logLeave(const QString& name);

/// The line of a user's operation on a page or a dialog. An empty `id` is told by `className`, if there is one.
void logUserOperation(const QString& url, const QString& operation, const QString& control, const QString& id,
                      const QString& className, const QVariant& value);
/// The same for the user who closes a window by its title bar.
void logUserClose(const QObject& window);
/// The line of an error that a page has met.
void logUserError(const QString& message);
