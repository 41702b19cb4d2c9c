#pragma once

#include "GUI_WebViewDialog.h"

/// The dialog in which the default settings are made. GUI thread.
class GUI_WrenDefaultSettingsDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `parent` may be null.
    GUI_WrenDefaultSettingsDialog(ZebHost* host, QWidget* parent);

    /// Runs it, but not in file mode. Whether it was accepted, which is stored; false also when it went with its
    /// parent, or the host has taken the plug-in away meanwhile.
    static bool run(ZebHost& host, QWidget* parent);
};
