#pragma once

#include "GUI_WebViewDialog.h"

/// The dialog by which the settings of the connected cameras go into a file, or into presets that the devices keep
/// themselves. Its page is the host's. GUI thread.
class GUI_CameraSettingsDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `folder`, where the file goes unless the user wants it elsewhere, is made if it is not there.
    GUI_CameraSettingsDialog(ZebHost* host, const QString& folder, QWidget* parent = nullptr);
};
