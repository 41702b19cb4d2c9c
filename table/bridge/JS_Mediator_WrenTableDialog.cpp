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
    call(*this, Plain, __func__, {}, [this] {
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

template <>
ParameterEditing JS_Mediator_WrenTableDialog::topic() {
    return {host(), m_state.allowed};
}

template <>
TriggerEditing JS_Mediator_WrenTableDialog::topic() {
    return TriggerEditing(host());
}

template <>
MemoryEditing JS_Mediator_WrenTableDialog::topic() {
    return MemoryEditing(host());
}

template <>
CameraManagement JS_Mediator_WrenTableDialog::topic() {
    return {host(), m_state};
}

/// A change of many cameras to the value that stands in the log as `name`.
template <typename Topic, typename Param, typename Value>
void JS_Mediator_WrenTableDialog::edit(const char* method, const QVariantList& keys, const char* name,
                                       const Value& value, void (Topic::*set)(const DocKeyList&, Param)) {
    call(*this, Change, method, {{"keys", keyText(keys)}, {name, value}}, [&] {
        const DocKeyList docKeys = toDocKeys(keys);
        // No keys stand for all cameras in some of these; a list without one good key does not.
        if (keys.isEmpty() || !docKeys.isEmpty()) {
            (topic<Topic>().*set)(docKeys, value);
        }
    });
}

void JS_Mediator_WrenTableDialog::onOpen() {
    call(*this, Traced, __func__, {}, [this] { openSession(); });
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
    call(*this, Traced, __func__, {}, [this] {
        endSession();
        JS_Mediator_ModelessPatternDialog::onClose();
    });
}

void JS_Mediator_WrenTableDialog::endSession() {
    call(*this, Plain, __func__, {}, [this] { closeSession(); });
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
    return call(*this, Query, __func__, {}, [&] {
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
    call(*this, Query, __func__, {}, [&] { RecordModel(host(), m_state).addRecStatus(status); });
    return QString::fromUtf8(QJsonDocument(status).toJson(QJsonDocument::Compact));
}

bool JS_Mediator_WrenTableDialog::isRecReady() {
    return call(*this, Query, __func__, {},
                [this] { return RecordModel(host(), m_state).recordState() == zeb::RecordReady; });
}

bool JS_Mediator_WrenTableDialog::isRecording() {
    return call(*this, Query, __func__, {},
                [this] { return RecordModel(host(), m_state).recordState() == zeb::RecordRecording; });
}

QString JS_Mediator_WrenTableDialog::getGroups() {
    return call(*this, Query, __func__, {}, [this] { return RecordModel(host(), m_state).getGroups(); });
}

QString JS_Mediator_WrenTableDialog::getGroup() {
    return call(*this, Query, __func__, {}, [this] { return RecordModel(host(), m_state).getGroup(); });
}

int JS_Mediator_WrenTableDialog::getFilter() {
    return call(*this, Query, __func__, {}, [this] { return RecordModel(host(), m_state).getFilter(); });
}

DOCKEY JS_Mediator_WrenTableDialog::getBatchDocKey() {
    return m_state.batchDocKey;
}

bool JS_Mediator_WrenTableDialog::isSuspendReduceMode(DOCKEY dockey) {
    return call(*this, Query, __func__, {{"dockey", dockey}},
                [&] { return RecordModel(host(), m_state).isSuspendReduceMode(dockey, cycleFailures()); });
}

PARTITIONNUMBER JS_Mediator_WrenTableDialog::getCurrentPartition() {
    return call(*this, Query, __func__, {}, [this] { return currentPartition(host()); });
}

QString JS_Mediator_WrenTableDialog::getCurrentPartitionName() {
    return call(*this, Query, __func__, {}, [this] { return currentPartitionName(host()); });
}

void JS_Mediator_WrenTableDialog::showLivePartition(int x, int y, int width, int height) {
    call(*this, Plain, __func__, {}, [&] {
        if (TableView* table = tableView()) {
            table->showPartitionBox({x, y, width, height});
        }
    });
}

void JS_Mediator_WrenTableDialog::hideSelectBox() {
    call(*this, Plain, __func__, {}, [this] {
        if (TableView* table = tableView()) {
            table->hidePartitionBox();
        }
    });
}

bool JS_Mediator_WrenTableDialog::isShownSelectBox() {
    return call(*this, Query, __func__, {}, [this] {
        const TableView* table = tableView();
        return table != nullptr && table->isPartitionBoxShown();
    });
}

QString JS_Mediator_WrenTableDialog::getSearchAddress() {
    return call(*this, Traced, __func__, {}, [this] { return CameraManagement(host(), m_state).getSearchAddress(); });
}

void JS_Mediator_WrenTableDialog::searchCamera(const QString& ipAddress) {
    call(*this, Change, __func__, {{"ipAddress", ipAddress}},
         [&] { CameraManagement(host(), m_state).searchCamera(ipAddress); });
}

void JS_Mediator_WrenTableDialog::discoverysearch() {
    call(*this, Change, __func__, {}, [this] { CameraManagement(host(), m_state).discover(); });
}

void JS_Mediator_WrenTableDialog::updateCamera() {
    call(*this, Change, __func__, {}, [this] { CameraManagement(host(), m_state).update(); });
}

void JS_Mediator_WrenTableDialog::deleteAllCamera() {
    call(*this, Change, __func__, {}, [this] { CameraManagement(host(), m_state).deleteAll(); });
}

bool JS_Mediator_WrenTableDialog::confirmDisconnect(const QVariantList& keys) {
    return call(*this, Action, __func__, {{"keys", keyText(keys)}},
                [&] { return CameraManagement(host(), m_state).confirmDisconnect(toDocKeys(keys)); });
}

void JS_Mediator_WrenTableDialog::connect(const QVariantList& keys, bool connect, bool force) {
    if (force && isInCall()) {  // the host's own command is not lost
        afterCalls([this, keys, connect] { this->connect(keys, connect, true); });
        return;
    }
    call(*this, Change, __func__, {{"keys", keyText(keys)}, {"connect", connect}, {"force", force}},
         [&] { CameraManagement(host(), m_state).connect(toDocKeys(keys), connect, force); });
}

void JS_Mediator_WrenTableDialog::select(const QVariantList& keys, bool select) {
    call(*this, Action, __func__, {{"keys", keyText(keys)}, {"select", select}}, [&] {
        if (CameraManagement(host(), m_state).select(toDocKeys(keys), select)) {
            m_timers.waitForSelection(SelectionWait);
            activateTable();
        }
    });
}

void JS_Mediator_WrenTableDialog::setCameraName(const QVariantList& keys, const QString& cameraName) {
    edit(__func__, keys, "cameraName", cameraName, &CameraManagement::setCameraName);
}

void JS_Mediator_WrenTableDialog::setComment(const QVariantList& keys, const QString& comment) {
    edit(__func__, keys, "comment", comment, &CameraManagement::setComment);
}

void JS_Mediator_WrenTableDialog::editDoc(DOCKEY dockey) {
    call(*this, Change, __func__, {{"docKey", dockey}}, [&] { CameraManagement(host(), m_state).editDoc(dockey); });
}

void JS_Mediator_WrenTableDialog::setParamLock(const QVariantList& keys, bool lock) {
    edit(__func__, keys, "lock", lock, &ParameterEditing::setParamLock);
}

void JS_Mediator_WrenTableDialog::setFrameRate(const QVariantList& keys, const QString& val) {
    edit(__func__, keys, "val", val, &ParameterEditing::setFrameRate);
}

void JS_Mediator_WrenTableDialog::setShutterSpeed(const QVariantList& keys, const QString& val) {
    edit(__func__, keys, "val", val, &ParameterEditing::setShutterSpeed);
}

void JS_Mediator_WrenTableDialog::setResolution(const QVariantList& keys, const QString& val) {
    edit(__func__, keys, "val", val, &ParameterEditing::setResolution);
}

void JS_Mediator_WrenTableDialog::setTriggerMode(const QVariantList& keys, const QString& val) {
    edit(__func__, keys, "val", val, &TriggerEditing::setTriggerMode);
}

void JS_Mediator_WrenTableDialog::setReduceMode(const QVariantList& keys, bool on) {
    edit(__func__, keys, "on", on, &ParameterEditing::setReduceMode);
}

void JS_Mediator_WrenTableDialog::setLowLight(const QVariantList& keys, bool on) {
    edit(__func__, keys, "on", on, &ParameterEditing::setLowLight);
}

void JS_Mediator_WrenTableDialog::setLowLightType(const QVariantList& keys, bool check) {
    edit(__func__, keys, "check", check, &ParameterEditing::setLowLightType);
}

QString JS_Mediator_WrenTableDialog::getSyncSettings() {
    return call(*this, Query, __func__, {}, [this] { return SyncSettings(host(), m_state.sync).look().toJson(); });
}

bool JS_Mediator_WrenTableDialog::setSyncSettings() {
    return call(*this, Action, __func__, {}, [this] { return SyncSettings(host(), m_state.sync).synchronise(*this); });
}

void JS_Mediator_WrenTableDialog::connectSignalGenerator() {
    call(*this, Action, __func__, {}, [this] { SignalSources(host(), m_state.sync).connectGenerator(); });
}

void JS_Mediator_WrenTableDialog::connectSignalDistributors() {
    call(*this, Action, __func__, {}, [this] { SignalSources(host(), m_state.sync).connectHubs(); });
}

void JS_Mediator_WrenTableDialog::setSignalFrequency(int freq) {
    call(*this, Action, __func__, {{"freq", freq}}, [&] { SignalSources(host(), m_state.sync).setFrequency(freq); });
}

bool JS_Mediator_WrenTableDialog::checkDifferenceRecordRateAndExternalFrequency(DOC_Interface* doc) {
    bool agrees = true;
    call(*this, Query, __func__, {}, [&] {
        const SignalSources signal(host(), m_state.sync);
        agrees = doc == nullptr || !signal.givesFrequency() || signal.agreesWith(*doc);
    });
    return agrees;
}

void JS_Mediator_WrenTableDialog::record() {
    call(*this, Action, __func__, {}, [this] {
        try {
            RecordButton(*this, host(), m_state, tableWindow()).press();
        } catch (...) {
            m_state.recordRunning = false;
            throw;
        }
    });
}

void JS_Mediator_WrenTableDialog::cancelRecord() {
    call(*this, Change, __func__, {}, [this] { RecordButton(*this, host(), m_state, tableWindow()).cancel(); });
}

void JS_Mediator_WrenTableDialog::setTriggerTesting(bool value) {
    call(*this, Change, __func__, {{"value", value}}, [&] { host().setTriggerTesting(value); });
}

void JS_Mediator_WrenTableDialog::stopLive(bool stop) {
    call(*this, Change, __func__, {{"stop", stop}}, [&] {
        DocumentGuard guard(host(), false, false);
        host().liveLoop().setStopLive(stop, 1);
        guard.release();
    });
}

void JS_Mediator_WrenTableDialog::updateLive() {
    call(*this, Change, __func__, {}, [this] { host().liveLoop().updateLive(); });
}

void JS_Mediator_WrenTableDialog::snapShot(int mode) {
    call(*this, Action, __func__, {{"mode", mode}}, [&] { host().saver().snapShot(mode); });
}

void JS_Mediator_WrenTableDialog::setRecordCheck(const QVariantList& keys, bool check) {
    edit(__func__, keys, "check", check, &MemoryEditing::setRecordCheck);
}

void JS_Mediator_WrenTableDialog::setSelectStartFrameNo(const QVariantList& keys, int frameNo) {
    edit(__func__, keys, "frameNo", frameNo, &MemoryEditing::setSelectStartFrameNo);
}

void JS_Mediator_WrenTableDialog::setSelectEndFrameNo(const QVariantList& keys, int frameNo) {
    edit(__func__, keys, "frameNo", frameNo, &MemoryEditing::setSelectEndFrameNo);
}

void JS_Mediator_WrenTableDialog::setTriggerOffset(const QVariantList& keys, int offset) {
    edit(__func__, keys, "offset", offset, &MemoryEditing::setTriggerOffset);
}

void JS_Mediator_WrenTableDialog::save() {
    call(*this, Change, __func__, {}, [this] { MemoryEditing(host()).save(); });
}

void JS_Mediator_WrenTableDialog::saveLayout() {
    call(*this, Change, __func__, {}, [this] { MemoryEditing(host()).saveLayout(); });
}

bool JS_Mediator_WrenTableDialog::isRecordDuringExporting() {
    return call(*this, Query, __func__, {}, [this] { return host().saver().isBgSaving(); });
}

bool JS_Mediator_WrenTableDialog::isOtherPluginOpen() {
    return call(*this, Query, __func__, {}, [this] { return host().isOtherPluginOpen(); });
}

bool JS_Mediator_WrenTableDialog::getTriggerTesting() {
    return call(*this, Query, __func__, {}, [this] { return host().getTriggerTesting(); });
}

bool JS_Mediator_WrenTableDialog::isStopLive() {
    return call(*this, Query, __func__, {}, [this] {
        DOC_Interface* doc = host().docManager().getCurrentDoc();
        return doc != nullptr && doc->activity().isStopLive();
    });
}

void JS_Mediator_WrenTableDialog::enterLiveMode() {
    call(*this, Change, __func__, {}, [this] { host().appStatus().enterLiveMode(); });
}

void JS_Mediator_WrenTableDialog::enterMemoryMode() {
    call(*this, Change, __func__, {}, [this] { host().appStatus().enterMemoryMode(); });
}

void JS_Mediator_WrenTableDialog::showReadyProgress() {
    call(*this, Query, __func__, {}, [this] {
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
    call(*this, Query, __func__, {}, [this] { delete m_readyProgress; });
}

void JS_Mediator_WrenTableDialog::startAutoUpdate() {
    m_timers.start();
}

void JS_Mediator_WrenTableDialog::stopAutoUpdate() {
    m_timers.stop();
}

void JS_Mediator_WrenTableDialog::slotSelectForUpdate() {
    call(*this, Plain, __func__, {}, [this] {
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
