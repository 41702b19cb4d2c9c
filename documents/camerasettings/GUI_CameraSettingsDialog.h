#pragma once

#include "GUI_WebViewDialog.h"

/// The dialog by which the settings of the connected cameras go into a file, or into presets that the devices keep
/// themselves. Its page is the host's. GUI thread.
class GUI_CameraSettingsDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// Makes the folder of settings files if it is not there.
    explicit GUI_CameraSettingsDialog(ZebHost* host, QWidget* parent = nullptr);
};
