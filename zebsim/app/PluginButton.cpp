#include "PluginButton.h"

#include "PLG_Interface.h"
#include "PluginSlot.h"
#include "SimHost.h"

PluginButton::PluginButton(SimHost& host, PluginSlot& slot, QWidget* parent) : QToolButton(parent), m_slot(slot) {
    setObjectName(slot.plugin().getName());
    setText(slot.plugin().getName().toUpper());
    setCheckable(true);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    connect(this, &QToolButton::clicked, this, [this] { m_slot.open(); });
    connect(&host.events(), &HostEvents::pluginShown, this, &PluginButton::refresh);
    connect(&host.events(), &HostEvents::pluginClosed, this, &PluginButton::refresh);
    connect(&host.events(), &HostEvents::modeChanged, this, &PluginButton::refresh);
    connect(&host.events(), &HostEvents::updateFinished, this, &PluginButton::refresh);
    refresh();
}

void PluginButton::refresh() {
    setChecked(m_slot.isChecked());
    setEnabled(m_slot.isEnabled());
}
