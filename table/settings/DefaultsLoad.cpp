#include "DefaultsLoad.h"

#include "CameraDefaults.h"
#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DeterScope.h"
#include "DocKeys.h"
#include "DocumentGuard.h"
#include "InputPorts.h"
#include "SignalSources.h"
#include "TableDefaults.h"
#include "TableState.h"
#include "TextKey.h"
#include "TriggerEditing.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QDebug>

#include <optional>

namespace {

const QString CameraState = TextKey("State of the camera");

template <typename... Words>
void log(const Words&... words) {
    ((qInfo() << "loadDefaultSettings") << ... << words);
}

/// Ports are counted from 1. A camera without the port is left as it is.
void setSignal(DOC_Control& camera, int port, int signal) {
    const int index = camera.getPortList(1).indexOf(port) + 1;
    if (index > 0) {
        camera.setPortSignal(index, signal);
    }
}

}  // namespace

void DefaultsLoad::loadAll() {
    m_failures.attempt([this] {
        const TableDefaults table = TableDefaults::read(m_host);
        load(m_host.docManager().getConnectedDocKeys(), &table);
    });
}

void DefaultsLoad::loadOnto(const DocKeyList& joined) {
    m_failures.attempt([&] { load(joined, nullptr); });
}

/// Without `table` the cameras alone.
void DefaultsLoad::load(const DocKeyList& keys, const TableDefaults* table) {
    const CameraDefaults defaults = CameraDefaults::read(m_host);
    DocumentGuard guard(m_host, false, false);
    std::optional<DeterScope> noCycles(m_host);
    if (!m_host.isFileMode() && readCameras(keys) && (table != nullptr || !m_connected.isEmpty())) {
        m_failures.attempt([&] { apply(defaults, table); });
        m_failures.attempt([this] { returnToLowLight(); });
    }
    m_steps.finish();
    noCycles.reset();
    guard.release();
    if (!m_misfits.isEmpty() && m_steps.isPluginThere()) {
        m_host.alert(m_misfits.join(QLatin1Char('\n')), nullptr);
    }
}

void DefaultsLoad::apply(const CameraDefaults& defaults, const TableDefaults* table) {
    leaveLowLight();
    m_open = m_steps.ask(m_host.translate(CameraState), m_connected,
                         [](DOC_Interface& doc) { return !doc.lock().isParamLocked(); });
    if (table != nullptr) {
        m_state.groups = table->groups;
        log("groups");
    }
    setCameras(defaults);
    if (table != nullptr && m_steps.isPluginThere()) {
        takeLists(*table);
        connectSignalSources();
    }
}

/// Looks at all of them before anything is changed; whether they may be.
bool DefaultsLoad::readCameras(const DocKeyList& keys) {
    const QString label = m_host.translate(CameraState);
    m_connected = m_steps.ask(label, keys, [](DOC_Interface& doc) { return doc.isConnected(); });
    const DocKeyList armed = m_steps.ask(label, m_connected, [](DOC_Interface& doc) { return isArmed(doc); });
    m_steps.readNames(label, m_connected);
    if (!armed.isEmpty()) {
        qInfo() << "The default settings were not loaded. Ready or recording:" << m_steps.namesOf(armed)
                << "without them:" << m_steps.namesOf(m_connected);
    }
    return armed.isEmpty();
}

void DefaultsLoad::leaveLowLight() {
    if (m_host.isLiveMode()) {
        m_lowLight = m_steps.ask(m_host.translate(CameraState), m_connected,
                                 [](DOC_Interface& doc) { return doc.control().isLowLightMode(); });
        m_steps.run(m_host.translate(TextKey("Low light off")), m_lowLight,
                    [](DOC_Interface& doc) { doc.control().setLowLightMode(false); });
    }
}

/// Also where a step has failed on the camera: it may have been switched off all the same.
void DefaultsLoad::returnToLowLight() {
    m_steps.runOnAll(m_host.translate(TextKey("Low light on again")), m_lowLight,
                     [](DOC_Interface& doc) { doc.control().setLowLightMode(true); });
}

void DefaultsLoad::setCameras(const CameraDefaults& defaults) {
    const auto inLiveMode = [this](const char* label, const CameraSteps::Step& step) {
        if (m_host.isLiveMode()) {
            m_steps.run(m_host.translate(QLatin1String(label)), m_open, step);
        }
    };
    if (defaults.triggerMode && m_host.isLiveMode()) {
        setTrigger(*defaults.triggerMode, defaults.trigger);
    }
    log("triggers");
    if (defaults.triggerSwIn) {
        inLiveMode(QT_TR_NOOP("TriggerSwIn"), [&](DOC_Interface& doc) {
            setSignal(doc.control(), InputPorts::of(doc.control().getCameraType()).triggerSwIn, *defaults.triggerSwIn);
        });
    }
    if (defaults.triggerIn) {
        inLiveMode(QT_TR_NOOP("TriggerIn"), [&](DOC_Interface& doc) {
            setSignal(doc.control(), InputPorts::of(doc.control().getCameraType()).triggerIn, *defaults.triggerIn);
        });
    }
    log("terminal");
    inLiveMode(QT_TR_NOOP("Lock"), [&](DOC_Interface& doc) {
        doc.control().setResolutionLock(defaults.resolutionLock);
        doc.control().setShutterSpeedLock(defaults.shutterSpeedLock);
    });
    log("locks");
    inLiveMode(QT_TR_NOOP("Lowlight"), [&](DOC_Interface& doc) {
        DOC_Control& camera = doc.control();
        if (camera.isFunctionSupported(zeb::FunctionLowLight, 1) && !camera.isLowLightMode()) {
            camera.setLowLightType(defaults.lowLightType);
        }
    });
    log("lowlight");
}

void DefaultsLoad::setTrigger(int mode, const zeb::TriggerSettings& parameters) {
    const QString label = m_host.translate(TextKey("Trigger"));
    DocKeyList fitting = m_steps.left(m_open);
    const DocKeyList misfits =
        m_steps.ask(label, m_open, [&](DOC_Interface& doc) { return !TriggerEditing::fits(doc, mode, parameters); });
    TriggerEditing triggers(m_host);
    for (const DOCKEY key : misfits) {
        fitting.removeAll(key);
        // One that has gone has told nothing.
        if (m_host.docManager().getDoc(key, 1) != nullptr) {
            m_misfits << triggers.misfitText(m_steps.nameOf(key));
        }
    }
    // One that only lacks the mode says so, and is as good as any other for the later steps.
    const DocKeyList offering = m_steps.ask(
        label, fitting, [mode](DOC_Interface& doc) { return doc.control().getTriggerModeList().contains(mode); });
    for (const TriggerEditing::Command& command : triggers.commands(mode, parameters)) {
        const DocList docs = docsOf(m_host.docManager(), m_steps.left(fitting));
        if (docs.isEmpty()) {
            return;
        }
        GatheredFailures refusals;
        refusals.attempt([&] { command(docs); });
        for (const DOCKEY refusing : m_steps.note(label, fitting, offering, refusals)) {
            fitting.removeAll(refusing);
        }
    }
}

void DefaultsLoad::takeLists(const TableDefaults& settings) {
    m_state.sync.frequency = settings.syncFrequency.value_or(m_state.sync.frequency);
    m_state.sync.offered = settings.syncSignals;
    log("syncSignal", m_state.sync.frequency);
    log("syncSignals", settings.syncSignals);
    m_state.allowed = settings.allowed;
    log("framerate", settings.allowed.frameRates);
    log("shutter", settings.allowed.shutterSpeeds);
    log("resolution", settings.allowed.resolutions);
    m_state.areas = settings.areas;
    log("area");
}

void DefaultsLoad::connectSignalSources() {
    SignalSources sources(m_host, m_state.sync, &m_failures);
    sources.connectGenerator();
    log("connectSignalGenerator");
    sources.connectHubs();
    log("connectSignalDistributors");
}
