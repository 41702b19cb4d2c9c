#pragma once

#include <QJSEngine>
#include <QJSValue>
#include <QObject>
#include <QString>

#include <atomic>
#include <optional>

class ScenarioApi;
class Simulator;

/// Runs a scenario script against the application. GUI thread, from the event loop.
class ScenarioRunner : public QObject {
    Q_OBJECT

public:
    /// `simulator` must outlive the runner. A script that runs longer than `timeout` seconds is ended.
    ScenarioRunner(Simulator& simulator, int timeout);
    /// For a user who looks on: dialogs, menus and notices that the script does not answer are his, it takes as long as
    /// it takes, and it ends when he closes the application.
    explicit ScenarioRunner(Simulator& simulator);

    /// Whether one runs in this program.
    static bool isRunning() { return s_running; }
    /// Status to exit with: 0 when the script ran to its end and all checks held, else 1.
    int run(const QString& path);

    /// The script's own functions.
    Q_INVOKABLE void print(const QJSValue& value);
    Q_INVOKABLE void check(const QJSValue& condition, const QString& text);

Q_SIGNALS:
    void printed(const QString& text);
    /// A check has failed, or the script has thrown.
    void failed(const QString& text);

private:
    int run(const QString& path, const QString& program);
    void evaluate(ScenarioApi& api, const QString& path, const QString& program);
    bool isGivenUp();
    void expired();
    static void rejectDialogs();
    void fail(const QString& text);
    void reportError(const QJSValue& error);
    QString callerPlace();

    Simulator& m_simulator;
    /// None: a user looks on.
    const std::optional<int> m_timeout;
    QJSEngine m_engine;
    std::atomic<bool> m_stop{false};
    bool m_failed = false;
    static inline bool s_running = false;
};
