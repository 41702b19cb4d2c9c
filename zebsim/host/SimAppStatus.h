#pragma once

#include "PLG_Interface.h"
#include "ZebAppStatus.h"

#include <QList>
#include <QPointer>

struct HostContext;

/// Plug-ins by name, running flags, and the mode.
class SimAppStatus : public ZebAppStatus {
public:
    explicit SimAppStatus(const HostContext& host) : m_host(host) {}

    /// A registered plug-in takes part in update cycles.
    void registerPlugin(PLG_Interface* plugin);
    void unregisterPlugin(PLG_Interface* plugin);
    QList<PLG_Interface*> plugins() const;
    /// Null for none.
    void setCurrentPlugin(PLG_Interface* plugin);

    /// A `zeb::OperatingMode`.
    int mode() const { return m_mode; }
    /// Changes the mode and asks for an update cycle.
    void enterMode(int mode);

    PLG_Interface* getPlugin(const QString& name) const override;
    PLG_Interface* getCurrentPlugin() const override { return m_current; }
    QString getCurrentPluginName() const override;
    bool isPluginEnabledFor(const QString& name, DOC_Interface* doc) const override;
    void openPlugin(const QString& name) override;
    void closePlugin(const QString& name) override;
    void clearCurrentPlugin() override;
    void closePanel() override;
    void closeAuxiliaryPanel() override;
    void setWrenRunning(bool running) override;
    bool isWrenRunning() const override { return m_wrenRunning; }
    void notifyPluginShown(PLG_Interface* plugin) override;
    void notifyPluginClosed(PLG_Interface* plugin) override;
    void enterLiveMode() override;
    void enterMemoryMode() override;
    bool isMVersion() const override;
    bool isAutoExposureSetting() const override;
    bool isHwTriggerSetting() const override;
    bool isVariableSetting() const override;
    bool isSendingNodeCommand() const override;
    bool isAdjustingImage() const override;
    bool isDetectingPixelDefect() const override;
    bool isImageTriggerCapturing() const override;
    bool isImageTriggerDetecting() const override;

private:
    const HostContext& m_host;
    QList<QPointer<PLG_Interface>> m_plugins;
    QPointer<PLG_Interface> m_current;
    /// The image plug-in whose panel is open; empty for none.
    QString m_panel;
    bool m_wrenRunning = false;
    int m_mode = 0;
};
