#pragma once

#include <QToolButton>

class PluginSlot;
class SimHost;

/// The button of a plug-in in the viewer's tool bar: stands pressed exactly while the plug-in says so.
class PluginButton : public QToolButton {
    Q_OBJECT

public:
    /// Both must outlive the button.
    PluginButton(SimHost& host, PluginSlot& slot, QWidget* parent);

protected:
    /// A press opens the plug-in; how the button stands is the plug-in's answer.
    void nextCheckState() override {}

private:
    void refresh();

    PluginSlot& m_slot;
};
