#include "SimAppStatus.h"

#include "Camera.h"
#include "CameraBank.h"
#include "DOC_Interface.h"
#include "HostCalls.h"
#include "HostContext.h"
#include "HostEvents.h"
#include "ImageEffects.h"
#include "StatusFlags.h"
#include "UpdateCycle.h"

#include <stdexcept>

void SimAppStatus::registerPlugin(PLG_Interface* plugin) {
    m_plugins.append(plugin);
}

void SimAppStatus::unregisterPlugin(PLG_Interface* plugin) {
    m_plugins.removeAll(plugin);
}

QList<PLG_Interface*> SimAppStatus::plugins() const {
    QList<PLG_Interface*> plugins;
    for (const auto& plugin : m_plugins) {
        if (plugin) {
            plugins.append(plugin);
        }
    }
    return plugins;
}

void SimAppStatus::enterMode(int mode) {
    if (mode != m_mode) {
        m_mode = mode;
        m_host.cameras.listFiles(mode == zeb::FileMode);
        Q_EMIT m_host.events.modeChanged(mode);
    }
    m_host.updates.request();
}

PLG_Interface* SimAppStatus::getPlugin(const QString& name) const {
    for (PLG_Interface* plugin : plugins()) {
        if (plugin->getName() == name) {
            return plugin;
        }
    }
    return nullptr;
}

bool SimAppStatus::isPluginEnabledFor(const QString& name, DOC_Interface* doc) const {
    m_host.calls.ask(OPERATION("isPluginEnabledFor"));
    const Camera* camera = doc ? m_host.cameras.find(doc->getKey()) : nullptr;
    return camera && camera->get(&CameraState::plugins).contains(name) &&
           !camera->get(&CameraState::blockedPlugins).contains(name);
}

QString SimAppStatus::getCurrentPluginName() const {
    if (m_host.flags.isOn(StatusFlags::IsActiveLensCalibration)) {
        return QStringLiteral("lenscalib");
    }
    if (m_host.flags.isOn(StatusFlags::IsImageOverlay)) {
        return QStringLiteral("imageoverlay");
    }
    return m_current ? m_current->getName() : m_panel;
}

void SimAppStatus::setCurrentPlugin(PLG_Interface* plugin) {
    m_current = plugin;
    m_panel.clear();
}

void SimAppStatus::openPlugin(const QString& name) {
    m_host.calls.change(OPERATION("ZebAppStatus::openPlugin"), {name});
    if (findImageEffect(name)) {
        setCurrentPlugin(nullptr);
        m_panel = name;
        Q_EMIT m_host.events.pluginWanted(name);
        m_host.updates.request();
    } else if (getPlugin(name)) {
        Q_EMIT m_host.events.pluginWanted(name);
    } else {
        throw std::invalid_argument(QStringLiteral("There is no plug-in \"%1\".").arg(name).toStdString());
    }
}

void SimAppStatus::clearCurrentPlugin() {
    m_host.calls.change(OPERATION("ZebAppStatus::clearCurrentPlugin"));
    setCurrentPlugin(nullptr);
}

void SimAppStatus::closePlugin(const QString& name) {
    m_host.calls.change(OPERATION("ZebAppStatus::closePlugin"), {name});
    if (m_panel == name) {
        m_panel.clear();
    }
    PLG_Interface* plugin = getPlugin(name);
    if (!plugin) {
        return;
    }
    if (m_current == plugin) {
        m_current = nullptr;
    }
    plugin->deactivate();
}

void SimAppStatus::closePanel() {
    m_host.calls.change(OPERATION("ZebAppStatus::closePanel"));
    setCurrentPlugin(nullptr);
}

void SimAppStatus::closeAuxiliaryPanel() {
    m_host.calls.change(OPERATION("ZebAppStatus::closeAuxiliaryPanel"));
}

void SimAppStatus::setWrenRunning(bool running) {
    m_host.calls.note("ZebAppStatus::setWrenRunning", {running});
    m_wrenRunning = running;
}

void SimAppStatus::notifyPluginShown(PLG_Interface* plugin) {
    Q_EMIT m_host.events.pluginShown(plugin->getName());
}

void SimAppStatus::notifyPluginClosed(PLG_Interface* plugin) {
    Q_EMIT m_host.events.pluginClosed(plugin->getName());
}

void SimAppStatus::enterLiveMode() {
    m_host.calls.change(OPERATION("ZebAppStatus::enterLiveMode"));
    enterMode(zeb::LiveMode);
}

void SimAppStatus::enterMemoryMode() {
    m_host.calls.change(OPERATION("ZebAppStatus::enterMemoryMode"));
    enterMode(zeb::MemoryMode);
}

bool SimAppStatus::isMVersion() const {
    return m_host.flags.isOn(StatusFlags::IsMVersion);
}

bool SimAppStatus::isAutoExposureSetting() const {
    return m_host.flags.isOn(StatusFlags::IsAutoExposureSetting);
}

bool SimAppStatus::isHwTriggerSetting() const {
    return m_host.flags.isOn(StatusFlags::IsHwTriggerSetting);
}

bool SimAppStatus::isVariableSetting() const {
    return m_host.flags.isOn(StatusFlags::IsVariableSetting);
}

bool SimAppStatus::isSendingNodeCommand() const {
    return m_host.flags.isOn(StatusFlags::IsSendingNodeCommand);
}

bool SimAppStatus::isAdjustingImage() const {
    return m_host.flags.isOn(StatusFlags::IsAdjustingImage);
}

bool SimAppStatus::isDetectingPixelDefect() const {
    return m_host.flags.isOn(StatusFlags::IsDetectingPixelDefect);
}

bool SimAppStatus::isImageTriggerCapturing() const {
    return m_host.flags.isOn(StatusFlags::IsImageTriggerCapturing);
}

bool SimAppStatus::isImageTriggerDetecting() const {
    return m_host.flags.isOn(StatusFlags::IsImageTriggerDetecting);
}
