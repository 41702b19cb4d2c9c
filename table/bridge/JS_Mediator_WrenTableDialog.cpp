#include "JS_Mediator_WrenTableDialog.h"

#include "BridgeCall.h"
#include "GUI_ProgressDialog.h"
#include "GatheredFailures.h"
#include "LogFailure.h"
#include "PLG_Interface.h"
#include "RecordModel.h"
#include "RecordingStatus.h"
#include "TableSession.h"
#include "TableView.h"
#include "ZebAppStatus.h"
#include "ZebHost.h"
#include "ZebSignalDevices.h"

#include <QDialog>

#include <utility>

namespace {

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

void JS_Mediator_WrenTableDialog::onOpen() {
    call(*this, Traced, __func__, {}, [this] { openSession(); });
}

void JS_Mediator_WrenTableDialog::openSession() {
    m_sessionOpen = true;
    GatheredFailures failures;
    int interval = DefaultInterval;
    failures.attempt([&] { interval = host().getPrefInt(QStringLiteral("wren/table/interval")); });
    m_timers.renew(interval);
    failures.attempt([this] { TableSession(host(), m_state).open(tableWindow()); });
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
                                    [&] { m_state.recordRunning = !RecordingStatus(host()).isOver(); });
        }
        const RecordModel::Answer answer = model.getRecords(json, cycleFailures());
        if (answer.selectionChanged) {
            updateUI();
            activateTable();
        }
        return answer.json;
    });
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
