#include "DefaultsLoad.h"

#include "CameraDefaults.h"
#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DefaultSettings.h"
#include "DocKeys.h"
#include "DocumentGuard.h"
#include "InputPorts.h"
#include "SignalSources.h"
#include "TableState.h"
#include "TextKey.h"
#include "TriggerEditing.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QDebug>

namespace {

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
        const DefaultSettings table = DefaultSettings::read(m_host);
        load(m_host.docManager().getConnectedDocKeys(), &table);
    });
}

void DefaultsLoad::loadOnto(const DocKeyList& joined) {
    m_failures.attempt([&] { load(joined, nullptr); });
}

/// Without `table` the cameras alone.
void DefaultsLoad::load(const DocKeyList& keys, const DefaultSettings* table) {
    const CameraDefaults defaults = CameraDefaults::read(m_host);
    DocumentGuard guard(m_host, false, false);
    if (!m_host.isFileMode() && areAtRest(keys)) {
        m_failures.attempt([&] {
            darken();
            if (table != nullptr) {
                m_state.groups = table->groups;
                log("groups");
            }
            setCameras(defaults);
            if (table != nullptr && m_steps.isPluginThere()) {
                takeLists(*table);
                connectSignalSources();
            }
        });
        m_failures.attempt([this] { lightUp(); });
    }
    guard.release();
    if (!m_invalidTriggers.isEmpty() && m_steps.isPluginThere()) {
        m_host.alert(m_invalidTriggers.join(QLatin1Char('\n')), nullptr);
    }
}

/// Looks at all of them before anything is changed.
bool DefaultsLoad::areAtRest(const DocKeyList& keys) {
    const QString label = m_host.translate(TextKey("State of the camera"));
    m_connected = m_steps.run(label, keys, [](DOC_Interface& doc) { return doc.isConnected(); });
    m_steps.readNames(label, m_connected);
    const DocKeyList armed = m_steps.run(label, m_connected, [](DOC_Interface& doc) { return isArmed(doc); });
    if (!armed.isEmpty()) {
        qInfo() << "The default settings were not loaded. Ready or recording:" << m_steps.namesOf(armed)
                << "without them:" << m_steps.namesOf(m_connected);
    }
    return armed.isEmpty();
}

void DefaultsLoad::darken() {
    if (m_host.isLiveMode()) {
        const QString label = m_host.translate(TextKey("Lowlight"));
        m_lowLight = m_steps.run(label, m_connected, [](DOC_Interface& doc) { return doc.control().isLowLightMode(); });
        m_steps.run(label, m_lowLight, [](DOC_Interface& doc) {
            doc.control().setLowLightMode(false);
            return true;
        });
    }
    m_open = m_steps.run(m_host.translate(TextKey("Lock")), m_connected,
                         [](DOC_Interface& doc) { return !doc.lock().isParamLocked(); });
}

/// Also where a step has failed on the camera: it may have been switched off all the same.
void DefaultsLoad::lightUp() {
    m_steps.runOnAll(m_host.translate(TextKey("Lowlight")), m_lowLight, [](DOC_Interface& doc) {
        doc.control().setLowLightMode(true);
        return true;
    });
}

void DefaultsLoad::setCameras(const CameraDefaults& defaults) {
    const auto inLiveMode = [this](const char* label, const std::function<void(DOC_Interface&)>& step) {
        if (m_host.isLiveMode()) {
            m_steps.run(m_host.translate(QLatin1String(label)), m_open, [&step](DOC_Interface& doc) {
                step(doc);
                return true;
            });
        }
    };
    if (defaults.triggerMode && m_host.isLiveMode()) {
        setTrigger(*defaults.triggerMode);
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

void DefaultsLoad::setTrigger(int mode) {
    const DocKeyList left = m_steps.left(m_open);
    const TriggerEditing::Outcome outcome =
        TriggerEditing(m_host).applyTriggerMode(docsOf(m_host.docManager(), left), mode);
    m_invalidTriggers = outcome.invalid;
    m_steps.note(m_host.translate(TextKey("Trigger")), left, outcome.refusals);
}

void DefaultsLoad::takeLists(const DefaultSettings& settings) {
    m_state.sync.frequency = settings.syncFrequency.value_or(m_state.sync.frequency);
    m_state.sync.offered = settings.syncSignals;
    log("syncSignal", settings.syncFrequency.value_or(0));
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
