#pragma once

#include <QJSEngine>
#include <QJSValue>
#include <QObject>
#include <QString>

#include <atomic>

class Simulator;

/// Runs a scenario script against the application. GUI thread, from the event loop.
class ScenarioRunner : public QObject {
    Q_OBJECT

public:
    /// `simulator` must outlive the runner. A script that runs longer than `timeout` seconds is ended.
    ScenarioRunner(Simulator& simulator, int timeout);

    /// Status to exit with: 0 when the script ran to its end and all checks held, else 1.
    int run(const QString& path);

    /// The script's own functions.
    Q_INVOKABLE void print(const QJSValue& value);
    Q_INVOKABLE void check(const QJSValue& condition, const QString& text);

private:
    int run(const QString& path, const QString& program);
    void expired();
    static void rejectDialogs();
    void fail(const QString& text);
    void reportError(const QJSValue& error);
    QString callerPlace();

    Simulator& m_simulator;
    const int m_timeout;
    QJSEngine m_engine;
    std::atomic<bool> m_stop{false};
    bool m_failed = false;
};
