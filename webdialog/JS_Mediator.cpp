#include "JS_Mediator.h"

#include "APP_ConcurrentException.h"
#include "APP_Exception.h"
#include "BridgeCall.h"
#include "ControlStatus.h"
#include "LogFailure.h"
#include "OperationEventHandler.h"
#include "Style.h"
#include "TextResource.h"
#include "TraceText.h"
#include "ZebAppStatus.h"
#include "ZebHost.h"
#include "ZebMdi.h"

#include <QDebug>
#include <QDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>

#include <optional>
#include <utility>

JS_Mediator::JS_Mediator(ZebHost* host, const QString& name, QObject* parent)
    : ZebPageBridge(parent), m_host(host), m_name(name) {}

void JS_Mediator::setView(QWebView* view) {
    m_view = view;
}

QWebView* JS_Mediator::view() const {
    return m_view;
}

void JS_Mediator::raiseUpdate() {
    Q_EMIT update();
}

void JS_Mediator::enterCall() {
    if (m_callDepth++ == 0) beginCall();
}

void JS_Mediator::leaveCall() {
    if (--m_callDepth > 0) return;
    endCall();
    if (!m_afterCalls.isEmpty()) QTimer::singleShot(0, this, &JS_Mediator::runAfterCalls);
}

void JS_Mediator::afterCalls(const std::function<void()>& action) {
    m_afterCalls.append(action);
    if (!isInCall()) QTimer::singleShot(0, this, &JS_Mediator::runAfterCalls);
}

void JS_Mediator::runAfterCalls() {
    if (isInCall()) return;  // the end of that call comes back here
    // An action may destroy the bridge: nothing of it is touched behind this line.
    const QList<std::function<void()>> actions = std::exchange(m_afterCalls, {});
    for (const std::function<void()>& action : actions) action();
}

void JS_Mediator::reportCurrentFailure() noexcept {
    logFailure([this] {
        try {
            throw;
        } catch (const APP_ConcurrentException& e) {
            APP_Exception inner = e.inner();
            errorHandler(inner);
        } catch (std::exception& e) {
            errorHandler(e);
        } catch (...) {
            APP_Exception unknown(QStringLiteral("Unknown failure."));
            errorHandler(unknown);
        }
    });
}

void JS_Mediator::errorHandler(std::exception& e) {
    host().errorHandler(e);
}

void JS_Mediator::setStyle(const QString& style) {
    bridgeCall(*this, [&] {
        const OperationEventHandler scope(*this, QStringLiteral("JS_Mediator::setStyle"),
                                          traceArg(QStringLiteral("style"), style));
        host().setPref(QStringLiteral("env/style"), style);
        QWidget* mainWindow = host().getMainWindow();
        if (!mainWindow) return;
        if (auto* mobile = mainWindow->findChild<QDialog*>(QStringLiteral("GUI_MobileDialog")))
            applyNativeStyle(host(), *mobile);
    });
}

QString JS_Mediator::getStyle() {
    return bridgeCall(*this, QString(), [&] { return styleName(host()); });
}

void JS_Mediator::info(const QString& message) {
    bridgeCall(*this, [&] { host().info(message, nullptr); });
}

void JS_Mediator::warn(const QString& message) {
    bridgeCall(*this, [&] { host().warn(message, nullptr); });
}

void JS_Mediator::warn(const QString& message, const QStringList& messages) {
    bridgeCall(*this, [&] { host().warnList(message, messages, nullptr); });
}

void JS_Mediator::alert(const QString& message) {
    bridgeCall(*this, [&] { host().alert(message, nullptr); });
}

void JS_Mediator::alert(const QString& message, const QStringList& messages) {
    bridgeCall(*this, [&] { host().alertList(message, messages, nullptr); });
}

bool JS_Mediator::confirm(const QString& message) {
    return bridgeCall(*this, false, [&] { return host().confirmModal(message, nullptr, {}); });
}

QString JS_Mediator::translate(const QString& string) {
    return bridgeCall(*this, QString(), [&] { return host().translate(string); });
}

QString JS_Mediator::translate(const QString& string, const QString& arg) {
    return bridgeCall(*this, QString(), [&] { return host().translate(string).arg(host().translate(arg)); });
}

bool JS_Mediator::isLiveMode() {
    return bridgeCall(*this, false, [&] { return host().isLiveMode(); });
}

bool JS_Mediator::isMemoryMode() {
    return bridgeCall(*this, false, [&] { return host().isMemoryMode(); });
}

bool JS_Mediator::isFileMode() {
    return bridgeCall(*this, false, [&] { return host().isFileMode(); });
}

QString JS_Mediator::load(const QString& fileName) {
    const QString path = QStringLiteral(":/") + fileName;
    const std::optional<QString> text = readTextResource(path);
    if (!text) qWarning() << "not found" << path;
    return text.value_or(QString());
}

void JS_Mediator::updateUI() {
    bridgeCall(*this, [&] { host().updateUI(m_updateMask, true); });
}

void JS_Mediator::deterUpdateUI(bool deter) {
    bridgeCall(*this, [&] { host().deterUpdateUI(deter); });
}

void JS_Mediator::addPrefsJSObject() {
    if (m_view) m_view->page()->mainFrame()->addToJavaScriptWindowObject(QStringLiteral("prefs"), this);
}

int JS_Mediator::getPrefInt(const QString& name, const QVariant& defaultValue) {
    return bridgeCall(*this, 0, [&] { return host().getPrefInt(name, defaultValue); });
}

bool JS_Mediator::getPrefBool(const QString& name, const QVariant& defaultValue) {
    return bridgeCall(*this, false, [&] { return host().getPrefBool(name, defaultValue); });
}

float JS_Mediator::getPrefFloat(const QString& name, const QVariant& defaultValue) {
    return bridgeCall(*this, 0.0F, [&] { return host().getPrefFloat(name, defaultValue); });
}

QString JS_Mediator::getPrefString(const QString& name, const QVariant& defaultValue) {
    return bridgeCall(*this, QString(), [&] { return host().getPrefString(name, defaultValue); });
}

template <typename Store>
void JS_Mediator::storePref(const QString& method, const QString& name, const QVariant& value, bool update,
                            Store store) {
    bridgeCall(*this, [&] {
        std::optional<OperationEventHandler> scope;
        if (update)
            scope.emplace(*this, method,
                          traceArg(QStringLiteral("name"), name) + traceArg(QStringLiteral("value"), value));
        store();
    });
}

void JS_Mediator::setPrefInt(const QString& name, int value, bool update) {
    storePref(QStringLiteral("JS_Mediator::setPrefInt"), name, value, update, [&] { host().setPrefInt(name, value); });
}

void JS_Mediator::setPrefBool(const QString& name, bool value, bool update) {
    storePref(QStringLiteral("JS_Mediator::setPrefBool"), name, value, update,
              [&] { host().setPrefBool(name, value); });
}

void JS_Mediator::setPrefFloat(const QString& name, float value, bool update) {
    storePref(QStringLiteral("JS_Mediator::setPrefFloat"), name, value, update,
              [&] { host().setPrefFloat(name, value); });
}

void JS_Mediator::setPrefString(const QString& name, const QString& value, bool update) {
    storePref(QStringLiteral("JS_Mediator::setPrefString"), name, value, update,
              [&] { host().setPrefString(name, value); });
}

void JS_Mediator::setPrefDQString(const QString& name, const QString& value, bool update) {
    storePref(QStringLiteral("JS_Mediator::setPrefDQString"), name, value, update,
              [&] { host().setPref(name, QVariant(value)); });
}

void JS_Mediator::log(const QString&) {}

void JS_Mediator::debugLog(const QString&) {}

void JS_Mediator::infoLog(const QString& msg) {
    qInfo() << msg;
}

void JS_Mediator::errorLog(const QString& msg) {
    qCritical() << msg;
}

QString JS_Mediator::getControlStatus(DOC_Interface* pDoc) {
    return bridgeCall(*this, QString(), [&] {
        return QString::fromUtf8(QJsonDocument(controlStatus(host(), pDoc)).toJson(QJsonDocument::Compact));
    });
}

void JS_Mediator::userOperationLogWebView(const QString& url, const QString& operation, const QString& control,
                                          const QString& id, const QString& className, const QVariant& value) {
    logUserOperation(url, operation, control, id, className, value);
}

void JS_Mediator::userOperationErrorLog(const QString& message) {
    logUserError(message);
}

int JS_Mediator::countMdiWindow(bool visible) {
    return bridgeCall(*this, 0, [&] { return host().mdi().countMdiWindow(visible, 2); });
}

bool JS_Mediator::isWrenRunning() {
    return bridgeCall(*this, false, [&] { return host().appStatus().isWrenRunning(); });
}
