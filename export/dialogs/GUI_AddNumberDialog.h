#pragma once

#include "GUI_WebViewDialog.h"

/// The dialog that chooses how many digits the numbers in a name have. Its page is the host's; accepted, it has stored
/// them. GUI thread.
class GUI_AddNumberDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `slot` as in `slotKey`; `documents` that the name is for, of devices with `heads` heads.
    GUI_AddNumberDialog(ZebHost* host, int slot, int documents, int heads, QWidget* parent = nullptr);
};
