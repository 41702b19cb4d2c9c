#include "SimHost.h"

#include "AppDesk.h"
#include "Camera.h"
#include "DOC_Interface.h"
#include "ImagePlugins.h"
#include "Rig.h"
#include "SupportFile.h"
#include "ZebPageBridge.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QFutureWatcher>
#include <QWebView>
#include <QtDebug>

SimHost::SimHost(Clock& clock, MessageDesk& desk, const QString& prefsPath)
    : m_clock(clock),
      m_desk(desk),
      m_prefs(prefsPath),
      m_calls(m_journal, m_faults, clock),
      m_cameras(clock, m_faults),
      m_updates([this] { runUpdateCycle(); }),
      m_appObject(m_prefs, m_translator),
      m_prefsRestored(!m_prefs.problem().isEmpty()),
      m_notices([this](Message::Kind kind, const QString& text) { notify(kind, text); }),
      m_unsavedGuard(m_cameras, m_prefs, m_translator,
                     [this](const QString& question, const QStringList& lines) { return mayLose(question, lines); }),
      m_appStatus(m_calls, m_events, m_updates, m_cameras, m_flags),
      m_signalDevices(m_calls, clock, m_faults),
      m_syncSignal(m_cameras, m_signalDevices),
      m_recorder(m_calls, clock, m_cameras, m_prefs, m_flags, m_appStatus, m_events, m_updates, m_translator, m_notices,
                 m_unsavedGuard),
      m_docManager(m_calls, m_cameras, m_prefs, m_appStatus, m_flags, m_translator, m_syncSignal, m_recorder, m_updates,
                   m_notices, m_unsavedGuard, [this](const std::exception& e) { tellFailure(e); }),
      m_liveLoop(m_calls, m_cameras, m_events),
      m_player(m_calls),
      m_saver(m_calls, m_flags, [this] { return m_appDesk; }),
      m_cameraOps(m_calls, m_cameras, m_docManager, m_recorder, m_saver, m_prefs, m_flags, m_translator, m_notices),
      m_viewOps(m_cameras, m_flags),
      m_mdi(m_cameras, m_appStatus, m_flags),
      m_undo(m_calls) {
    m_translator.load(QStringLiteral("en"));
    m_faults.whenGone([this] {
        QMetaObject::invokeMethod(
            &m_updates, [this] { m_updates.request(); }, Qt::QueuedConnection);
    });
    if (!m_prefs.problem().isEmpty()) {
        Message message;
        message.kind = Message::Warn;
        message.text = m_prefs.problem();
        m_desk.show(message);
    }
}

void SimHost::setRig(const Rig& rig) {
    const QStringList unsaved = m_unsavedGuard.lines(lostByClosing(heldRecordings(m_cameras)));
    if (!unsaved.isEmpty()) {
        qWarning() << "Unsaved images go with their cameras:" << unsaved;
    }
    m_recorder.abandon();
    m_docManager.forgetDocs();
    m_faults.clear();
    m_cameras.replace(rig);
    m_signalDevices.replace(rig.hubs);
    Q_EMIT m_events.camerasReplaced();
    m_updates.request();
}

QVariant SimHost::getPref(const QString& key, const QVariant& defaultValue) const {
    m_calls.ask("getPref");
    return m_prefs.value(key, defaultValue);
}

int SimHost::getPrefInt(const QString& key, const QVariant& defaultValue) const {
    m_calls.ask("getPrefInt");
    return m_prefs.value(key, defaultValue).toInt();
}

bool SimHost::getPrefBool(const QString& key, const QVariant& defaultValue) const {
    m_calls.ask("getPrefBool");
    return m_prefs.value(key, defaultValue).toBool();
}

float SimHost::getPrefFloat(const QString& key, const QVariant& defaultValue) const {
    m_calls.ask("getPrefFloat");
    return m_prefs.value(key, defaultValue).toFloat();
}

QString SimHost::getPrefString(const QString& key, const QVariant& defaultValue) const {
    m_calls.ask("getPrefString");
    return m_prefs.value(key, defaultValue).toString();
}

void SimHost::storePref(const char* call, const QString& key, const QVariant& value) {
    m_calls.change(call, {key, value});
    m_prefs.setValue(key, value);
}

void SimHost::setPref(const QString& key, const QVariant& value) {
    storePref("ZebHost::setPref", key, value);
}

void SimHost::setPrefInt(const QString& key, int value) {
    storePref("ZebHost::setPrefInt", key, value);
}

void SimHost::setPrefBool(const QString& key, bool value) {
    storePref("ZebHost::setPrefBool", key, value);
}

void SimHost::setPrefFloat(const QString& key, float value) {
    storePref("ZebHost::setPrefFloat", key, value);
}

void SimHost::setPrefString(const QString& key, const QString& value) {
    storePref("ZebHost::setPrefString", key, value);
}

QString SimHost::translate(const QString& text) const {
    return m_translator.translate(text);
}

void SimHost::attachBridge(QWebView* view, ZebPageBridge* bridge) {
    m_bridges.attach(view, bridge);
}

void SimHost::updateUI(unsigned int mask, bool refresh) {
    m_calls.note("ZebHost::updateUI", {mask, refresh});
    m_updates.request();
}

void SimHost::deterUpdateUI(bool deter) {
    m_calls.note("ZebHost::deterUpdateUI", {deter});
    m_updates.deter(deter);
}

void SimHost::setTextBoxFocusState(bool focused) {
    m_calls.note("ZebHost::setTextBoxFocusState", {focused});
    m_flags.set(QStringLiteral("IsModalessDialogTextFocussing"), focused);
}

bool SimHost::isPrefsRestored() const {
    m_calls.ask("isPrefsRestored");
    return m_prefsRestored;
}

void SimHost::setPrefsRestored(int state) {
    m_calls.change("ZebHost::setPrefsRestored", {state});
    m_prefsRestored = state == 0;
}

bool SimHost::isUpdateIgnore() const {
    return m_flags.isOn(QStringLiteral("IsUpdateIgnore"));
}

void SimHost::refreshTools() {
    m_calls.change("ZebHost::refreshTools");
    m_updates.request();
}

ZebPrefsDialog* SimHost::getPrefsDialog() {
    m_calls.ask("getPrefsDialog");
    return m_appDesk ? m_appDesk->prefsDialog() : nullptr;
}

void SimHost::openPrefsEthernetSettings() {
    m_calls.change("ZebHost::openPrefsEthernetSettings");
    if (m_appDesk) {
        m_appDesk->openEthernetSettings();
    }
}

void SimHost::openAboutDialog() {
    m_calls.change("ZebHost::openAboutDialog");
    if (m_appDesk) {
        m_appDesk->openAbout();
    }
}

void SimHost::execProgress(const QString& text, QFutureWatcherBase& watcher) {
    m_calls.change("ZebHost::execProgress", {text});
    if (m_appDesk) {
        m_appDesk->runProgress(text, watcher);
        return;
    }
    m_docManager.endTurn();
    QEventLoop loop;
    QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    if (!watcher.isFinished()) {
        loop.exec();
    }
}

void SimHost::prepareSupportFile(ZebSupportFile& file) {
    m_calls.ask("prepareSupportFile");
    addHostState(file, *this);
    if (m_appDesk) {
        m_appDesk->addToSupportFile(file);
    }
}

bool SimHost::exportSupportFile(const QString& path, const ZebSupportFile& file) {
    return writeSupportFile(path, file);
}

bool SimHost::hasWrenWindow() const {
    PLG_Interface* wren = m_appStatus.getPlugin(QStringLiteral("wren"));
    return wren && wren->isDialogVisible();
}

void SimHost::hideSelectBox() {
    m_calls.change("ZebHost::hideSelectBox");
    hideDropDownBox({});
}

bool SimHost::isShownDropBox() const {
    m_calls.ask("isShownDropBox");
    return m_appDesk && m_appDesk->isDropDownBoxShown();
}

void SimHost::showDropDownBox(const QString& key, const QRect& anchor) {
    m_calls.change("ZebHost::showDropDownBox", {key});
    if (m_appDesk) {
        m_appDesk->showDropDownBox(key, anchor);
    }
}

void SimHost::hideDropDownBox(const QString& key) {
    m_calls.ask("hideDropDownBox");
    if (m_appDesk) {
        m_appDesk->hideDropDownBox(key);
    }
}

void SimHost::hideDropDownBoxAt(const QString& key, const QPoint& point) {
    m_calls.ask("hideDropDownBoxAt");
    if (m_appDesk && !m_appDesk->dropDownBoxRect(key).contains(point)) {
        m_appDesk->hideDropDownBox(key);
    }
}

void SimHost::runUpdateCycle() {
    if (isUpdateIgnore()) {
        return;
    }
    QStringList failures;
    for (const QPointer<PLG_Interface> plugin : m_appStatus.plugins()) {
        if (plugin) {
            guarded(failures, [&] { plugin->updateDialog(getOperatingMode()); });
        }
    }
    for (const BridgeDesk::Attached& attached : m_bridges.loaded()) {
        // Each of them may take others with it.
        if (attached.view && attached.bridge && !isInPluginDialog(attached.view)) {
            guarded(failures, [&] { attached.bridge->raiseUpdate(); });
        }
    }
    tellNew(failures);
    const HostCalls::Own own;
    Q_EMIT m_events.updateFinished();
}

void SimHost::guarded(QStringList& failures, const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& e) {
        failures.append(QString::fromUtf8(e.what()));
    }
}

void SimHost::tellNew(const QStringList& failures) {
    for (const QString& text : failures) {
        if (!text.isEmpty() && !m_cycleFailures.contains(text)) {
            notify(Message::Error, text);
        }
    }
    m_cycleFailures = failures;
}

bool SimHost::isInPluginDialog(const QWidget* widget) const {
    for (PLG_Interface* plugin : m_appStatus.plugins()) {
        const QDialog* dialog = plugin->getDialog(false);
        if (dialog && dialog->isAncestorOf(widget)) {
            return true;
        }
    }
    return false;
}

void SimHost::suspendViewer() {
    m_calls.note("ZebHost::suspendViewer");
    ++m_viewerSuspended;
}

void SimHost::resumeViewer() {
    m_calls.note("ZebHost::resumeViewer");
    m_viewerSuspended = qMax(0, m_viewerSuspended - 1);
}

bool SimHost::isApplicationClosing() const {
    return m_flags.isOn(QStringLiteral("IsApplicationClosing"));
}

bool SimHost::isWindowStateSaveSuppressed() const {
    return m_flags.isOn(QStringLiteral("IsWindowStateSaveSuppressed"));
}

bool SimHost::isOtherPluginOpen() const {
    return m_flags.isOn(QStringLiteral("IsOtherPluginOpen"));
}

bool SimHost::isSelectionKept() const {
    return m_flags.isOn(QStringLiteral("IsSelectionKept"));
}

void SimHost::saveFiles() {
    m_calls.change("ZebHost::saveFiles");
    if (m_appDesk) {
        m_appDesk->save(false);
    }
}

void SimHost::saveLayoutFiles() {
    m_calls.change("ZebHost::saveLayoutFiles");
    if (m_appDesk) {
        m_appDesk->save(true);
    }
}

void SimHost::setTriggerTesting(bool on) {
    m_calls.note("ZebHost::setTriggerTesting", {on});
    m_flags.set(QStringLiteral("IsTriggerTesting"), on);
}

bool SimHost::getTriggerTesting() const {
    return m_flags.isOn(QStringLiteral("IsTriggerTesting"));
}

bool SimHost::isTracking() const {
    return m_flags.isOn(QStringLiteral("IsTracking"));
}

bool SimHost::isShading() const {
    return m_flags.isOn(QStringLiteral("IsShading"));
}

bool SimHost::isAutoFocussing() const {
    return m_flags.isOn(QStringLiteral("IsAutoFocussing"));
}

bool SimHost::isCurrentAutoFocus(int /*mode*/) const {
    return m_flags.isOn(QStringLiteral("IsCurrentAutoFocus"));
}

bool SimHost::isCycleViewBlocked() const {
    return m_flags.isOn(QStringLiteral("IsCycleViewBlocked"));
}

bool SimHost::isPrefDialogOpening() const {
    return m_flags.isOn(QStringLiteral("IsPrefDialogOpening"));
}

bool SimHost::isTextBoxFocussing() const {
    return m_flags.isOn(QStringLiteral("IsModalessDialogTextFocussing"));
}

bool SimHost::isNotLivePage(bool orDeviceSettings) const {
    return m_flags.isOn(orDeviceSettings ? QStringLiteral("IsNotLiveAndDeviceSettingPage")
                                         : QStringLiteral("IsNotlivePage"));
}

bool SimHost::isModalDialogOpening() const {
    return QApplication::activeModalWidget() || m_flags.isOn(QStringLiteral("IsModalDialogOpening"));
}

bool SimHost::isZebActive() const {
    return (m_mainWindow && m_mainWindow->isActiveWindow()) || m_flags.isOn(QStringLiteral("IsActiveZebOnWren"));
}

QWidget* SimHost::getFullScreenWidget() const {
    const bool full = m_mainWindow && (m_mainWindow->isFullScreen() || m_flags.isOn(QStringLiteral("IsFullScreen")));
    return full ? m_mainWindow : nullptr;
}

bool SimHost::isToolActive(const QString& tool) const {
    return m_docManager.isToolActive(tool);
}

bool SimHost::isPluginAvailable(const QString& name) const {
    return imageplugins::has(name);
}

bool SimHost::isPluginOkPattern(const QString& name) const {
    return imageplugins::needsOk(name);
}

QList<int> SimHost::getSyncCapableCameraTypes() const {
    QList<int> types;
    for (const Camera* camera : m_cameras.all()) {
        const CameraModel& model = camera->model();
        if (model.syncCapable && !types.contains(model.type)) {
            types.append(model.type);
        }
    }
    return types;
}

bool SimHost::isCapable(const QString& capability, DOC_Interface* doc, int /*head*/) const {
    const Camera* camera = doc ? m_cameras.find(doc->getKey()) : nullptr;
    return camera && camera->model().capabilities.contains(capability);
}
