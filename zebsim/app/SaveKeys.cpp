#include "SaveKeys.h"

#include "HostWindows.h"
#include "PluginSignal.h"
#include "SimHost.h"
#include "UiText.h"

#include <QAction>
#include <QToolBar>

SaveKeys::SaveKeys(SimHost& host, HostWindows& windows, QToolBar& bar)
    : QObject(&bar),
      m_host(host),
      m_save(bar, uiText("Save"), QStringLiteral("Ctrl+S"), [this] { return refusal(); }),
      m_layout(bar, uiText("Save layout"), QStringLiteral("Ctrl+Shift+S"), [this] { return refusal(); }) {
    m_save.action().setObjectName(QStringLiteral("save"));
    m_layout.action().setObjectName(QStringLiteral("saveLayout"));
    connect(&m_save, &BarKey::pressed, this, [this, &windows] {
        if (m_host.isFileMode() || !sendToActivePlugin(m_host.appStatus(), "signalSaveFile")) {
            windows.save(false);
        }
    });
    connect(&m_layout, &BarKey::pressed, this, [this, &windows] {
        if (m_host.isFileMode() || !sendToActivePlugin(m_host.appStatus(), "signalSaveLayout")) {
            windows.save(true);
        }
    });
    connect(&host.events(), &HostEvents::modeChanged, this, &SaveKeys::refresh);
    refresh();
}

QString SaveKeys::refusal() const {
    return m_host.isLiveMode() ? uiText("Images are saved in memory mode.") : QString();
}

void SaveKeys::refresh() {
    m_save.refresh();
    m_layout.refresh();
}
