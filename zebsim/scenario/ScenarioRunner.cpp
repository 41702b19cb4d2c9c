#include "ScenarioRunner.h"

#include "ScenarioApi.h"
#include "ScriptWatchdog.h"
#include "Simulator.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QScopedValueRollback>

#include <cstdio>

namespace {

// Value of a program that was not left by an exception: what is thrown need not be an error object.
const QString EndMark = QStringLiteral("the script has run to its end");

// A method of an object of ours has a fixed number of arguments.
const QString Extension = QStringLiteral(
    "(function (api) { return Object.create(api, {answer: {value: (...texts) => api.answers(texts.map(String))}}); })");

void printLine(std::FILE* stream, const QString& text) {
    std::fprintf(stream, "%s\n", qUtf8Printable(text));
    std::fflush(stream);
}

}  // namespace

ScenarioRunner::ScenarioRunner(Simulator& simulator, int timeout) : m_simulator(simulator), m_timeout(timeout) {}

ScenarioRunner::ScenarioRunner(Simulator& simulator) : m_simulator(simulator) {}

int ScenarioRunner::run(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        printLine(stderr, path % QLatin1String(": ") % file.errorString());
        return 1;
    }
    return run(path, QString::fromUtf8(file.readAll()));
}

int ScenarioRunner::run(const QString& path, const QString& program) {
    const QScopedValueRollback<bool> running(s_running, true);
    // Nobody would answer the dialog that comes at the first opening of the table.
    m_simulator.host().prefs().assume(QStringLiteral("wren/settings/done"), true);
    // One of the system could not be worked.
    const bool hadNone = QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    ScenarioApi api(m_engine, m_simulator, QFileInfo(path).absolutePath(), [this] { return isGivenUp(); });
    connect(&api.dialogs(), &ScenarioDialogs::threw, this, &ScenarioRunner::reportError);
    connect(&api.dialogs(), &ScenarioDialogs::unanswerable, this, &ScenarioRunner::fail);
    if (m_timeout) {
        const ScriptWatchdog watchdog(*m_timeout, [this] { expired(); });
        evaluate(api, path, program);
    } else {
        api.dialogs().leaveRestToUser();
        evaluate(api, path, program);
    }
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, hadNone);
    return m_failed ? 1 : 0;
}

void ScenarioRunner::evaluate(ScenarioApi& api, const QString& path, const QString& program) {
    // The engine owns neither.
    QQmlEngine::setObjectOwnership(&api, QQmlEngine::CppOwnership);
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    const QJSValue self = m_engine.newQObject(this);
    for (const char* name : {"print", "check"}) {
        m_engine.globalObject().setProperty(QLatin1String(name), self.property(QLatin1String(name)));
    }
    QJSValue extend = m_engine.evaluate(Extension);
    m_engine.globalObject().setProperty(QStringLiteral("zeb"), extend.call({m_engine.newQObject(&api)}));
    const QJSValue end = m_engine.evaluate(program % QLatin1String("\n;'") % EndMark % QLatin1Char('\''), path);
    if (end.isError() || end.toString() != EndMark) {
        reportError(end);
    } else if (!api.dialogs().leftOver().isEmpty()) {
        fail(api.dialogs().leftOver());
    }
}

bool ScenarioRunner::isGivenUp() {
    if (!m_timeout && m_simulator.host().isApplicationClosing()) {
        m_engine.setInterrupted(true);
        return true;
    }
    return m_stop;
}

void ScenarioRunner::print(const QJSValue& value) {
    QString text = value.toString();
    if (value.isObject()) {
        QJSValue stringify = m_engine.evaluate(QStringLiteral("JSON.stringify"));
        text = stringify.call({value}).toString();
    }
    printLine(stdout, text);
    Q_EMIT printed(text);
}

void ScenarioRunner::check(const QJSValue& condition, const QString& text) {
    if (condition.toBool()) {
        printLine(stdout, QLatin1String("ok: ") % text);
    } else if (m_timeout) {
        fail(callerPlace() % QLatin1String(": ") % text);
    } else {
        m_engine.throwError(text);  // a user who looks on is not to be told of what did not come about
    }
}

void ScenarioRunner::expired() {
    m_stop = true;
    m_engine.setInterrupted(true);
    // Whoever waits for a dialog's answer goes on as if the user had left it.
    QMetaObject::invokeMethod(this, &ScenarioRunner::rejectDialogs, Qt::QueuedConnection);
}

void ScenarioRunner::rejectDialogs() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        auto* dialog = qobject_cast<QDialog*>(window);
        if (dialog != nullptr && dialog->isVisible() && dialog->isModal()) {
            dialog->reject();
        }
    }
}

void ScenarioRunner::fail(const QString& text) {
    m_failed = true;
    printLine(stdout, QLatin1String("FAILED: ") % text);
    Q_EMIT failed(text);
}

void ScenarioRunner::reportError(const QJSValue& error) {
    m_failed = true;
    if (isGivenUp() && !m_stop) {
        return;  // the user has closed the application
    }
    if (m_stop) {
        printLine(stderr, QStringLiteral("the scenario has run for more than %1 seconds").arg(*m_timeout));
        return;
    }
    const QString file = error.property(QStringLiteral("fileName"))
                             .toString()
                             .remove(QRegularExpression(QStringLiteral("^(file:(//)?|qrc:)")));
    const QString line = error.property(QStringLiteral("lineNumber")).toString();
    const QString place = error.isError() ? file % QLatin1Char(':') % line % QLatin1String(": ") : QString();
    const QString text = place % error.toString();
    printLine(stderr, text);
    Q_EMIT failed(text);
}

QString ScenarioRunner::callerPlace() {
    // "%entry@:1" is this evaluation itself; the script that called stands behind it.
    const QString stack = m_engine.evaluate(QStringLiteral("new Error().stack")).toString();
    static const QRegularExpression place(QStringLiteral("@(?:file:(?://)?|qrc:)(.+:\\d+)"));
    return place.match(stack).captured(1);
}
