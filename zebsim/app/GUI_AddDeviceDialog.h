#pragma once

#include "GUI_WebViewDialog.h"
#include "ZebTypes.h"

class SimHost;

/// The host's own dialog for a camera: adds one by its address, or edits the name and comment of one. The page offers
/// names of the user's list. GUI thread.
class GUI_AddDeviceDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `key` is that of the camera to edit; `zeb::NoDocKey` to add one.
    GUI_AddDeviceDialog(SimHost& host, DOCKEY key, QWidget* parent);

    /// Leaves the dialog when the camera that is edited has gone.
    void follow();

private:
    SimHost& m_simHost;
    const DOCKEY m_key;
};
