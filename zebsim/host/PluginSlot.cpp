#include "PluginSlot.h"

#include "SimHost.h"

#include <QDialog>

PluginSlot::PluginSlot(SimHost& host, PLG_Interface& plugin) : m_host(host), m_plugin(plugin) {
    m_host.appStatus().registerPlugin(&m_plugin);
    m_wanted =
        QObject::connect(&m_host.events(), &HostEvents::pluginWanted, &m_host.events(), [this](const QString& name) {
            if (name == m_plugin.getName()) {
                open();
            }
        });
}

PluginSlot::~PluginSlot() {
    QObject::disconnect(m_wanted);
    m_host.appStatus().unregisterPlugin(&m_plugin);
}

void PluginSlot::open() {
    try {
        if (m_plugin.isDialogVisible()) {
            // `showDialog` would open a minimised one anew, which takes locks and ticks away.
            QDialog& dialog = *m_plugin.getDialog(false);
            dialog.setWindowState(dialog.windowState() & ~Qt::WindowMinimized);
            dialog.activateWindow();
            return;
        }
        m_plugin.prepareOpen();
        m_plugin.activate();
        if (m_plugin.isToolActive()) {
            m_host.appStatus().setCurrentPlugin(&m_plugin);
        }
        m_plugin.getDialog(true);
        m_plugin.showDialog();
    } catch (const std::exception& e) {
        m_host.messages().tellFailure(e);
    }
}

void PluginSlot::close() {
    m_plugin.closeDialog();
}

bool PluginSlot::isChecked() const {
    SimDocManager& docs = m_host.docManager();
    DOC_Interface* doc = docs.getDocAny(docs.currentKey());
    const DocKeyList keys = m_host.cameras().keys();
    if (!doc && !keys.isEmpty()) {
        // Without a selection any document speaks for the button.
        doc = docs.getDocAny(keys.first());
    }
    return m_plugin.isChecked(doc, 0);
}

bool PluginSlot::isEnabled() const {
    return m_plugin.isButtonEnabled();
}
