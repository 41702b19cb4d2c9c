#pragma once

#include "PLG_Interface.h"

#include <QMetaObject>

class SimHost;

/// A plug-in's place in the host: registered while this lives, opened by its button. GUI thread.
class PluginSlot {
public:
    /// `plugin` has got its host already; it must live until this is gone.
    PluginSlot(SimHost& host, PLG_Interface& plugin);
    ~PluginSlot();
    PluginSlot(const PluginSlot&) = delete;
    PluginSlot& operator=(const PluginSlot&) = delete;

    PLG_Interface& plugin() const { return m_plugin; }

    /// A press of the button: prepareOpen, activate, getDialog(true), showDialog. A failure is shown by the host; one
    /// without a text ends the opening in silence. A dialog that is open already comes to the front.
    void open();
    /// Asks the dialog to close; the user may decline.
    void close();

    /// Whether the button stands pressed, and whether it can be pressed now.
    bool isChecked() const;
    bool isEnabled() const;

private:
    SimHost& m_host;
    PLG_Interface& m_plugin;
    QMetaObject::Connection m_wanted;
};
