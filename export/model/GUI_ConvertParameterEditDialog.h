#pragma once

#include "GUI_WebViewDialog.h"
#include "ZebTypes.h"

/// The dialog that says how images are converted once they are saved. Its page is the host's. GUI thread.
class GUI_ConvertParameterEditDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `keys` are the cameras whose images they are.
    GUI_ConvertParameterEditDialog(ZebHost* host, const DocKeyList& keys, QWidget* parent = nullptr);
};
