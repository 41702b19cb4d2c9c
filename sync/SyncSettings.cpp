#include "SyncSettings.h"

#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "GUI_SyncProgress.h"
#include "JS_Mediator.h"
#include "MasterChoice.h"
#include "RUN_SyncingThread.h"
#include "SyncChecks.h"
#include "SyncOrder.h"
#include "SyncPreferences.h"
#include "SyncState.h"
#include "SyncableDocs.h"
#include "TextKey.h"
#include "TraceScope.h"
#include "TraceText.h"
#include "ZebCameraOps.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString WiringPref = QStringLiteral("alert/setsynchronization");

/// A part of the work that leaves the lines of the call that does it alone.
template <typename Work>
void step(const char* method, TraceArgs args, Work&& work) {
    const TraceScope scope(QStringLiteral("JS_Mediator_WrenTableDialog::") % QLatin1String(method), args);
    work();
}

void logParams(const SYNC_PARAMS& params) {
    qInfo() << "SYNC_PARAMS"
            << "syncParams.external" << params.external << "syncParams.lport" << params.lport << "syncParams.generator"
            << params.generator << "syncParams.input" << params.input << "syncParams.frequency" << params.frequency
            << "syncParams.polarity" << params.polarity;
}

void logOrder(const QList<SyncCamera>& cameras) {
    QString line = QStringLiteral("Sorted : ");
    for (const SyncCamera& camera : cameras) {
        line += QStringLiteral("%1 -> ").arg(camera.address);
    }
    qInfo().noquote() << line;
}

}  // namespace

QString SyncView::toJson() const {
    const QJsonObject settings{{QStringLiteral("syncEnable"), inUse},
                               {QStringLiteral("syncExecuteEnable"), executable},
                               {QStringLiteral("syncSignal"), signal.text()},
                               {QStringLiteral("syncSignals"), QJsonArray::fromStringList(signal.frequencies)},
                               {QStringLiteral("signalGeneratorAvailable"), generatorAvailable},
                               {QStringLiteral("signalGeneratorConnected"), generatorConnected},
                               {QStringLiteral("masterHubAvailable"), hubAvailable},
                               {QStringLiteral("masterHubConnected"), hubConnected}};
    return QString::fromUtf8(QJsonDocument(settings).toJson(QJsonDocument::Compact));
}

SyncView SyncSettings::look() {
    SyncView view;
    view.inUse = syncprefs::isInUse(m_host);
    if (!view.inUse) {
        return view;
    }
    const bool external = syncprefs::isExternal(m_host);
    view.executable = m_host.docManager().getSyncableDocs(0).size() >= (external ? 1 : 2);
    if (!external) {
        return view;
    }
    view.generatorAvailable = m_state.generator && !syncprefs::generatorAddress(m_host).isEmpty();
    view.generatorConnected = view.generatorAvailable && m_sources.isGeneratorConnected();
    view.hubAvailable = !view.generatorAvailable && syncprefs::usesHubs(m_host);
    view.hubConnected = view.hubAvailable && m_sources.isHubConnected();
    if (!view.generatorConnected && !view.hubConnected) {
        return view;
    }
    const std::optional<SignalOffer> offer = view.generatorConnected ? m_sources.readGenerator() : m_sources.readHub();
    view.signal = chooseSignal(m_state.offered, m_state.frequency, offer.value_or(SignalOffer()));
    // A hub that did not answer for once takes nothing from what the user has chosen.
    if (offer) {
        m_state.frequency = view.signal.frequency;
    }
    return view;
}

bool SyncSettings::synchronise(JS_Mediator& bridge) {
    bool handedOver = false;
    bridge.runCall(JS_Mediator::Traced, QStringLiteral("JS_Mediator_WrenTableDialog::_setSyncSettings"), {}, [&] {
        const Outcome outcome = handOver();
        handedOver = outcome != Outcome::NotStarted;
        if (outcome == Outcome::Done) {
            remindOfWiring();
        }
    });
    return handedOver;
}

SyncSettings::Outcome SyncSettings::handOver() {
    if (!syncprefs::isInUse(m_host)) {
        return Outcome::NotStarted;
    }
    checkSyncCapability(m_host);
    DocList docs = withoutDummies(m_host.docManager().getCameraDocs());
    if (!canSync(docs)) {
        return Outcome::NotStarted;
    }

    const DocKeyList keys = keysOf(docs);
    step("connectSignalGenerator", {}, [this] { m_sources.connectGenerator(); });
    step("connectSignalDistributors", {}, [this] { m_sources.connectHubs(); });
    // Both may have waited for an answer, and the cameras are others meanwhile, or record by now.
    if (!syncprefs::isInUse(m_host)) {
        return Outcome::NotStarted;
    }
    checkSyncCapability(m_host);
    docs = connectedDocs(m_host.docManager(), keys);
    if (!canSync(docs)) {
        return Outcome::NotStarted;
    }
    DOC_Interface* master = chooseMaster(m_host, docs);
    m_state.masterCamera = master != nullptr ? master->getKey() : zeb::NoDocKey;
    if (master == nullptr) {
        return Outcome::NotStarted;
    }

    const SYNC_PARAMS params = readParams();
    step("setSignalFrequency", {{"freq", m_state.frequency}}, [this] { m_sources.setFrequency(m_state.frequency); });
    docs = sorted(docs, *master, params.external);
    logParams(params);
    RUN_SyncingThread thread(&m_host, docs, master, params);
    const bool done = GUI_SyncProgress(&m_host).run(thread);
    qInfo() << "GUI_SyncProgress result" << done;
    return done ? Outcome::Done : Outcome::Failed;
}

bool SyncSettings::canSync(const DocList& docs) const {
    if (docs.isEmpty()) {
        return false;
    }
    const bool can = m_host.cameraOps().canSync(docs);
    if (!can) {
        qWarning() << "Cameras can't be synchronised:" << keysOf(docs);
    }
    return can;
}

SYNC_PARAMS SyncSettings::readParams() const {
    SYNC_PARAMS params;
    params.external = m_host.getPrefBool(QStringLiteral("sync/external"));
    params.lport = syncprefs::port(m_host);
    params.generator = m_state.generator != nullptr;
    params.input = m_host.getPrefInt(QStringLiteral("sync/generator/input"));
    params.frequency = m_state.frequency >= 1 ? m_state.frequency : -1;
    const bool rising = m_host.getPrefInt(QStringLiteral("wren/settings/triggerIn")) == zeb::SignalTrigPos;
    params.polarity = rising ? 0 : 1;
    return params;
}

DocList SyncSettings::sorted(const DocList& docs, DOC_Interface& master, bool external) {
    const QString address = master.control().getAddress(1);
    const int triggerMode = master.control().getTriggerMode();
    const QList<SyncCamera> cameras = sortForSync(SyncCamera::readAll(docs), external, address, triggerMode);
    logOrder(cameras);
    DocList inOrder;
    for (const SyncCamera& camera : cameras) {
        if (DOC_Interface* doc = m_host.docManager().getDocAny(camera.key)) {
            inOrder.append(doc);
        }
    }
    return inOrder;
}

void SyncSettings::remindOfWiring() {
    if (!m_host.getPrefBool(WiringPref, true)) {
        return;
    }
    m_host.alertWithDontShowAgain(
        m_host.translate(TextKey("When using the software trigger, please check the wiring of the TRIG IN "
                                 "terminal and enable 'Do not input software trigger to slave camera'")),
        WiringPref, m_host.getMainWindow(), {});
}
