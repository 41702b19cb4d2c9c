#include "SaveKeys.h"

#include "UiText.h"
#include "host/AppDesk.h"
#include "host/PluginSignal.h"
#include "host/SimHost.h"

#include <QAction>
#include <QToolBar>

SaveKeys::SaveKeys(SimHost& host, AppDesk& desk, QToolBar& bar)
    : QObject(&bar),
      m_host(host),
      m_save(bar.addAction(uiText("Save"))),
      m_layout(bar.addAction(uiText("Save layout"))) {
    m_save->setObjectName(QStringLiteral("save"));
    m_save->setShortcut(QStringLiteral("Ctrl+S"));
    m_layout->setObjectName(QStringLiteral("saveLayout"));
    m_layout->setShortcut(QStringLiteral("Ctrl+Shift+S"));
    // The table is a window of its own.
    for (QAction* key : {m_save, m_layout}) key->setShortcutContext(Qt::ApplicationShortcut);
    connect(m_save, &QAction::triggered, this, [this, &desk] {
        if (!sendToActivePlugin(m_host.appStatus(), "signalSaveFile")) desk.save(false);
    });
    connect(m_layout, &QAction::triggered, this, [this, &desk] {
        if (!sendToActivePlugin(m_host.appStatus(), "signalSaveLayout")) desk.save(true);
    });
    connect(&host.events(), &HostEvents::modeChanged, this, &SaveKeys::refresh);
    refresh();
}

void SaveKeys::refresh() {
    for (QAction* key : {m_save, m_layout}) key->setEnabled(m_host.isMemoryMode());
}
