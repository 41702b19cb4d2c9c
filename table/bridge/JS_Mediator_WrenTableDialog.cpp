#include "JS_Mediator_WrenTableDialog.h"

#include "BridgeCall.h"
#include "CameraManagement.h"
#include "CurrentCamera.h"
#include "DOC_Activity.h"
#include "DOC_Interface.h"
#include "DocKeys.h"
#include "DocumentGuard.h"
#include "GUI_ProgressDialog.h"
#include "GatheredFailures.h"
#include "LogFailure.h"
#include "MemoryEditing.h"
#include "PLG_Interface.h"
#include "ParameterEditing.h"
#include "ReadyProgress.h"
#include "RecordButton.h"
#include "RecordModel.h"
#include "SyncSettings.h"
#include "TableSession.h"
#include "TableView.h"
#include "TextKey.h"
#include "TraceScope.h"
#include "TraceText.h"
#include "TriggerEditing.h"
#include "ZebAppStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebLiveLoop.h"
#include "ZebSaver.h"
#include "ZebSignalDevices.h"

#include <QCoreApplication>
#include <QDialog>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace {

/// Selections that follow each other within this time make one update. Milliseconds.
constexpr int SelectionWait = 500;
/// Between two updates while the preference can't be read. Milliseconds.
constexpr int DefaultInterval = 500;

QString methodName(const char* method) {
    return QStringLiteral("JS_Mediator_WrenTableDialog::") % QLatin1String(method);
}

QString keysArg(const QVariantList& keys) {
    return traceArg(QStringLiteral("keys"), keyText(keys));
}

QString docKeyArg(DOCKEY dockey) {
    return traceArg(QStringLiteral("docKey"), dockey);
}

}  // namespace

JS_Mediator_WrenTableDialog::JS_Mediator_WrenTableDialog(ZebHost* host, const QString& name, PLG_Interface* plugin,
                                                         QObject* parent)
    : JS_Mediator_ModelessPatternDialog(host, name, plugin, parent), m_timers(*host) {
    m_state.sync.failures = &cycleFailures();
    qRegisterMetaType<DOCKEY>("DOCKEY");
    qRegisterMetaType<PARTITIONNUMBER>("PARTITIONNUMBER");
    QObject::connect(&m_timers, &UpdateTimers::tick, this, [this] {
        cycleFailures().nextCycle();
        Q_EMIT autoUpdate();
    });
    QObject::connect(&m_timers, &UpdateTimers::selected, this, &JS_Mediator_WrenTableDialog::slotSelectForUpdate);
    bridgeCall(*this, [this] {
        m_timers.stop();  // ticks begin with the first call of the page
        openSession();
    });
}

JS_Mediator_WrenTableDialog::~JS_Mediator_WrenTableDialog() {
    logFailure([this] { closeSession(); });
    logFailure([this] {
        if (m_state.sync.generator) {
            m_state.sync.generator->disconnect();
            m_state.sync.generator.reset();
        }
        host().signalDevices().close();
    });
}

/// A call that is refused while another waits and leaves its lines in the log.
template <typename Work>
void JS_Mediator_WrenTableDialog::traced(const char* method, const QString& args, Work&& work) {
    tracedCall(*this, methodName(method), args, std::forward<Work>(work));
}

/// The same, and its end asks for an update.
template <typename Work>
void JS_Mediator_WrenTableDialog::operation(const char* method, const QString& args, Work&& work) {
    operationCall(*this, methodName(method), args, std::forward<Work>(work));
}

void JS_Mediator_WrenTableDialog::onOpen() {
    bridgeCall(*this, [this] {
        const TraceScope scope(methodName("onOpen"));
        openSession();
    });
}

void JS_Mediator_WrenTableDialog::openSession() {
    m_sessionOpen = true;
    GatheredFailures failures;
    int interval = DefaultInterval;
    failures.attempt([&] { interval = host().getPrefInt(QStringLiteral("wren/table/interval")); });
    m_timers.renew(interval);
    failures.attempt([this] { TableSession(host(), m_state).open(); });
    failures.rethrow();
}

void JS_Mediator_WrenTableDialog::ensureSession() {
    if (!m_sessionOpen) {
        onOpen();
    }
}

void JS_Mediator_WrenTableDialog::onClose() {
    bridgeCall(*this, [this] {
        const TraceScope scope(methodName("onClose"));
        endSession();
        JS_Mediator_ModelessPatternDialog::onClose();
    });
}

void JS_Mediator_WrenTableDialog::endSession() {
    bridgeCall(*this, [this] { closeSession(); });
}

void JS_Mediator_WrenTableDialog::closeSession() {
    if (!std::exchange(m_sessionOpen, false)) {
        return;
    }
    delete m_readyProgress;
    m_timers.remove();
    releaseTextBox();
    TableSession(host(), m_state).close();
}

QString JS_Mediator_WrenTableDialog::getRecords(const QString& json) {
    return queryCall(*this, __func__, QString(), [&] {
        RecordModel model(host(), m_state);
        // A call that is under way may be the one that arms.
        if (m_state.recordRunning && !isNested()) {
            cycleFailures().attempt(QStringLiteral("recording"),
                                    [&] { m_state.recordRunning = !model.isRecordingOver(); });
        }
        const RecordModel::Answer answer = model.getRecords(json, cycleFailures());
        if (answer.selectionChanged) {
            updateUI();
            activateTable();
        }
        return answer.json;
    });
}

QString JS_Mediator_WrenTableDialog::getRecStatus() {
    QJsonObject status;
    queryCall(*this, __func__, [&] { RecordModel(host(), m_state).addRecStatus(status); });
    return QString::fromUtf8(QJsonDocument(status).toJson(QJsonDocument::Compact));
}

bool JS_Mediator_WrenTableDialog::isRecReady() {
    return queryCall(*this, __func__, false,
                     [this] { return RecordModel(host(), m_state).recordState() == zeb::RecordReady; });
}

bool JS_Mediator_WrenTableDialog::isRecording() {
    return queryCall(*this, __func__, false,
                     [this] { return RecordModel(host(), m_state).recordState() == zeb::RecordRecording; });
}

QString JS_Mediator_WrenTableDialog::getGroups() {
    return queryCall(*this, __func__, QString(), [this] { return RecordModel(host(), m_state).getGroups(); });
}

QString JS_Mediator_WrenTableDialog::getGroup() {
    return queryCall(*this, __func__, QString(), [this] { return RecordModel(host(), m_state).getGroup(); });
}

int JS_Mediator_WrenTableDialog::getFilter() {
    return queryCall(*this, __func__, 0, [this] { return RecordModel(host(), m_state).getFilter(); });
}

DOCKEY JS_Mediator_WrenTableDialog::getBatchDocKey() {
    return m_state.batchDocKey;
}

bool JS_Mediator_WrenTableDialog::isSuspendReduceMode(DOCKEY dockey) {
    return queryCall(*this, {__func__, dockey}, false,
                     [&] { return RecordModel(host(), m_state).isSuspendReduceMode(dockey, cycleFailures()); });
}

PARTITIONNUMBER JS_Mediator_WrenTableDialog::getCurrentPartition() {
    return queryCall(*this, __func__, PARTITIONNUMBER(0), [this] { return currentPartition(host()); });
}

QString JS_Mediator_WrenTableDialog::getCurrentPartitionName() {
    return queryCall(*this, __func__, QString(), [this] { return currentPartitionName(host()); });
}

void JS_Mediator_WrenTableDialog::showLivePartition(int x, int y, int width, int height) {
    bridgeCall(*this, [&] {
        if (TableView* table = tableView()) {
            table->showPartitionBox({x, y, width, height});
        }
    });
}

void JS_Mediator_WrenTableDialog::hideSelectBox() {
    bridgeCall(*this, [this] {
        if (TableView* table = tableView()) {
            table->hidePartitionBox();
        }
    });
}

bool JS_Mediator_WrenTableDialog::isShownSelectBox() {
    return queryCall(*this, __func__, false, [this] {
        const TableView* table = tableView();
        return table != nullptr && table->isPartitionBoxShown();
    });
}

QString JS_Mediator_WrenTableDialog::getSearchAddress() {
    return bridgeCall(*this, QString(), [this] {
        const TraceScope scope(methodName("getSearchAddress"));
        return CameraManagement(host(), m_state).getSearchAddress();
    });
}

void JS_Mediator_WrenTableDialog::searchCamera(const QString& ipAddress) {
    operation("searchCamera", traceArg(QStringLiteral("ipAddress"), ipAddress),
              [&] { CameraManagement(host(), m_state).searchCamera(ipAddress); });
}

void JS_Mediator_WrenTableDialog::discoverysearch() {
    operation("discoverysearch", {}, [this] { CameraManagement(host(), m_state).discover(); });
}

void JS_Mediator_WrenTableDialog::updateCamera() {
    operation("updateCamera", {}, [this] { CameraManagement(host(), m_state).update(); });
}

void JS_Mediator_WrenTableDialog::deleteAllCamera() {
    operation("deleteAllCamera", {}, [this] { CameraManagement(host(), m_state).deleteAll(); });
}

bool JS_Mediator_WrenTableDialog::confirmDisconnect(const QVariantList& keys) {
    bool agreed = false;
    const QString args = keysArg(keys);
    traced("confirmDisconnect", args,
           [&] { agreed = CameraManagement(host(), m_state).confirmDisconnect(toDocKeys(keys)); });
    return agreed;
}

void JS_Mediator_WrenTableDialog::connect(const QVariantList& keys, bool connect, bool force) {
    if (force && isInCall()) {  // the host's own command is not lost
        afterCalls([this, keys, connect] { this->connect(keys, connect, true); });
        return;
    }
    const QString args =
        keysArg(keys) % traceArg(QStringLiteral("connect"), connect) % traceArg(QStringLiteral("force"), force);
    operation("connect", args, [&] { CameraManagement(host(), m_state).connect(toDocKeys(keys), connect, force); });
}

void JS_Mediator_WrenTableDialog::select(const QVariantList& keys, bool select) {
    const QString args = keysArg(keys) % traceArg(QStringLiteral("select"), select);
    traced("select", args, [&] {
        if (CameraManagement(host(), m_state).select(toDocKeys(keys), select)) {
            m_timers.waitForSelection(SelectionWait);
            activateTable();
        }
    });
}

void JS_Mediator_WrenTableDialog::setCameraName(const QVariantList& keys, const QString& cameraName) {
    operation("setCameraName", keysArg(keys) % traceArg(QStringLiteral("cameraName"), cameraName),
              [&] { CameraManagement(host(), m_state).setCameraName(toDocKeys(keys), cameraName); });
}

void JS_Mediator_WrenTableDialog::setComment(const QVariantList& keys, const QString& comment) {
    operation("setComment", keysArg(keys) % traceArg(QStringLiteral("comment"), comment),
              [&] { CameraManagement(host(), m_state).setComment(toDocKeys(keys), comment); });
}

void JS_Mediator_WrenTableDialog::editDoc(DOCKEY dockey) {
    operation("editDoc", docKeyArg(dockey), [&] { CameraManagement(host(), m_state).editDoc(dockey); });
}

/// A change of one parameter of many cameras, to the value that stands in the log.
template <typename Work>
void JS_Mediator_WrenTableDialog::edit(const char* method, const QVariantList& keys, const char* name,
                                       const QVariant& value, Work&& work) {
    operation(method, keysArg(keys) % traceArg(QLatin1String(name), value), [&] {
        const DocKeyList docKeys = toDocKeys(keys);
        // No keys stand for all cameras in some of these; a list without one good key does not.
        if (keys.isEmpty() || !docKeys.isEmpty()) {
            work(docKeys);
        }
    });
}

void JS_Mediator_WrenTableDialog::setParamLock(const QVariantList& keys, bool lock) {
    edit("setParamLock", keys, "lock", lock,
         [&](const DocKeyList& docKeys) { ParameterEditing(host(), m_state.allowed).setParamLock(docKeys, lock); });
}

void JS_Mediator_WrenTableDialog::setFrameRate(const QVariantList& keys, const QString& val) {
    edit("setFrameRate", keys, "val", val,
         [&](const DocKeyList& docKeys) { ParameterEditing(host(), m_state.allowed).setFrameRate(docKeys, val); });
}

void JS_Mediator_WrenTableDialog::setShutterSpeed(const QVariantList& keys, const QString& val) {
    edit("setShutterSpeed", keys, "val", val,
         [&](const DocKeyList& docKeys) { ParameterEditing(host(), m_state.allowed).setShutterSpeed(docKeys, val); });
}

void JS_Mediator_WrenTableDialog::setResolution(const QVariantList& keys, const QString& val) {
    edit("setResolution", keys, "val", val,
         [&](const DocKeyList& docKeys) { ParameterEditing(host(), m_state.allowed).setResolution(docKeys, val); });
}

void JS_Mediator_WrenTableDialog::setTriggerMode(const QVariantList& keys, const QString& val) {
    edit("setTriggerMode", keys, "val", val,
         [&](const DocKeyList& docKeys) { TriggerEditing(host()).setTriggerMode(docKeys, val); });
}

void JS_Mediator_WrenTableDialog::setReduceMode(const QVariantList& keys, bool on) {
    edit("setReduceMode", keys, "on", on,
         [&](const DocKeyList& docKeys) { ParameterEditing(host(), m_state.allowed).setReduceMode(docKeys, on); });
}

void JS_Mediator_WrenTableDialog::setLowLight(const QVariantList& keys, bool on) {
    edit("setLowLight", keys, "on", on,
         [&](const DocKeyList& docKeys) { ParameterEditing(host(), m_state.allowed).setLowLight(docKeys, on); });
}

void JS_Mediator_WrenTableDialog::setLowLightType(const QVariantList& keys, bool check) {
    edit("setLowLightType", keys, "check", check,
         [&](const DocKeyList& docKeys) { ParameterEditing(host(), m_state.allowed).setLowLightType(docKeys, check); });
}

QString JS_Mediator_WrenTableDialog::getSyncSettings() {
    return queryCall(*this, __func__, QString(), [this] { return SyncSettings(host(), m_state.sync).look().toJson(); });
}

bool JS_Mediator_WrenTableDialog::setSyncSettings() {
    bool handedOver = false;
    traced("setSyncSettings", {}, [&] { handedOver = SyncSettings(host(), m_state.sync).synchronise(*this); });
    return handedOver;
}

void JS_Mediator_WrenTableDialog::connectSignalGenerator() {
    traced("connectSignalGenerator", {}, [this] { SignalSources(host(), m_state.sync).connectGenerator(); });
}

void JS_Mediator_WrenTableDialog::connectSignalDistributors() {
    traced("connectSignalDistributors", {}, [this] { SignalSources(host(), m_state.sync).connectHubs(); });
}

void JS_Mediator_WrenTableDialog::setSignalFrequency(int freq) {
    traced("setSignalFrequency", traceArg(QStringLiteral("freq"), freq),
           [&] { SignalSources(host(), m_state.sync).setFrequency(freq); });
}

bool JS_Mediator_WrenTableDialog::checkDifferenceRecordRateAndExternalFrequency(DOC_Interface* doc) {
    return queryCall(*this, __func__, true, [&] {
        const SignalSources signal(host(), m_state.sync);
        return doc == nullptr || !signal.givesFrequency() || signal.agreesWith(*doc);
    });
}

void JS_Mediator_WrenTableDialog::record() {
    traced("record", {}, [this] {
        try {
            RecordButton(*this, host(), m_state, tableWindow()).press();
        } catch (...) {
            m_state.recordRunning = false;
            throw;
        }
    });
}

void JS_Mediator_WrenTableDialog::cancelRecord() {
    operation("cancelRecord", {}, [this] { RecordButton(*this, host(), m_state, tableWindow()).cancel(); });
}

void JS_Mediator_WrenTableDialog::setTriggerTesting(bool value) {
    operation("setTriggerTesting", traceArg(QStringLiteral("value"), value), [&] { host().setTriggerTesting(value); });
}

void JS_Mediator_WrenTableDialog::stopLive(bool stop) {
    operation("stopLive", traceArg(QStringLiteral("stop"), stop), [&] {
        DocumentGuard guard(host(), false, false);
        host().liveLoop().setStopLive(stop, 1);
        guard.release();
    });
}

void JS_Mediator_WrenTableDialog::updateLive() {
    operation("updateLive", {}, [this] { host().liveLoop().updateLive(); });
}

void JS_Mediator_WrenTableDialog::snapShot(int mode) {
    traced("snapShot", traceArg(QStringLiteral("mode"), mode), [&] { host().saver().snapShot(mode); });
}

void JS_Mediator_WrenTableDialog::setRecordCheck(const QVariantList& keys, bool check) {
    edit("setRecordCheck", keys, "check", check,
         [&](const DocKeyList& docKeys) { MemoryEditing(host()).setRecordCheck(docKeys, check); });
}

void JS_Mediator_WrenTableDialog::setSelectStartFrameNo(const QVariantList& keys, int frameNo) {
    edit("setSelectStartFrameNo", keys, "frameNo", frameNo,
         [&](const DocKeyList& docKeys) { MemoryEditing(host()).setSelectStartFrameNo(docKeys, frameNo); });
}

void JS_Mediator_WrenTableDialog::setSelectEndFrameNo(const QVariantList& keys, int frameNo) {
    edit("setSelectEndFrameNo", keys, "frameNo", frameNo,
         [&](const DocKeyList& docKeys) { MemoryEditing(host()).setSelectEndFrameNo(docKeys, frameNo); });
}

void JS_Mediator_WrenTableDialog::setTriggerOffset(const QVariantList& keys, int offset) {
    edit("setTriggerOffset", keys, "offset", offset,
         [&](const DocKeyList& docKeys) { MemoryEditing(host()).setTriggerOffset(docKeys, offset); });
}

void JS_Mediator_WrenTableDialog::save() {
    operation("save", {}, [this] { MemoryEditing(host()).save(); });
}

void JS_Mediator_WrenTableDialog::saveLayout() {
    operation("saveLayout", {}, [this] { MemoryEditing(host()).saveLayout(); });
}

bool JS_Mediator_WrenTableDialog::isRecordDuringExporting() {
    return queryCall(*this, __func__, false, [this] { return host().saver().isBgSaving(); });
}

bool JS_Mediator_WrenTableDialog::isOtherPluginOpen() {
    return queryCall(*this, __func__, false, [this] { return host().isOtherPluginOpen(); });
}

bool JS_Mediator_WrenTableDialog::getTriggerTesting() {
    return queryCall(*this, __func__, false, [this] { return host().getTriggerTesting(); });
}

bool JS_Mediator_WrenTableDialog::isStopLive() {
    return queryCall(*this, __func__, false, [this] {
        DOC_Interface* doc = host().docManager().getCurrentDoc();
        return doc != nullptr && doc->activity().isStopLive();
    });
}

void JS_Mediator_WrenTableDialog::enterLiveMode() {
    operation("enterLiveMode", {}, [this] { host().appStatus().enterLiveMode(); });
}

void JS_Mediator_WrenTableDialog::enterMemoryMode() {
    operation("enterMemoryMode", {}, [this] { host().appStatus().enterMemoryMode(); });
}

void JS_Mediator_WrenTableDialog::showReadyProgress() {
    queryCall(*this, __func__, [this] {
        const bool following = m_sessionOpen && host().appStatus().isWrenRunning();
        if (m_readyProgress || !following || m_state.loadingRigx) {
            return;
        }
        m_readyProgress = makeReadyProgressDialog(host().translate(TextKey("Ready...")), host());
        m_readyProgress->show();
        // A press that is under way keeps until this call has ended; in here it would be refused.
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    });
}

void JS_Mediator_WrenTableDialog::deleteReadyProgress() {
    queryCall(*this, __func__, [this] { delete m_readyProgress; });
}

void JS_Mediator_WrenTableDialog::startAutoUpdate() {
    m_timers.start();
}

void JS_Mediator_WrenTableDialog::stopAutoUpdate() {
    m_timers.stop();
}

void JS_Mediator_WrenTableDialog::slotSelectForUpdate() {
    bridgeCall(*this, [this] {
        updateUI();
        activateTable();
    });
}

/// Null while there is none, as in the constructor.
TableView* JS_Mediator_WrenTableDialog::tableView() const {
    PLG_Interface* wren = host().appStatus().getPlugin(QStringLiteral("wren"));
    return wren != nullptr ? dynamic_cast<TableView*>(wren->getDialog(false)) : nullptr;
}

QWidget* JS_Mediator_WrenTableDialog::tableWindow() const {
    TableView* table = tableView();
    return table != nullptr ? &table->widget() : nullptr;
}

void JS_Mediator_WrenTableDialog::activateTable() {
    if (QWidget* window = tableWindow()) {
        window->activateWindow();
    }
}
