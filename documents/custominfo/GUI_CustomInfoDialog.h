#pragma once

#include "GUI_WebViewDialog.h"

class JS_Mediator_CustomInfoDialog;

/// The dialog in which the lists of custom information of several cameras are edited. Its page is the host's. What is
/// edited there reaches the cameras at once; a rejection puts back what they had. GUI thread.
class GUI_CustomInfoDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// Of the temporary save list, else of the selected cameras.
    GUI_CustomInfoDialog(ZebHost* host, bool forTemporary, QWidget* parent = nullptr);

    void reject() override;
};
