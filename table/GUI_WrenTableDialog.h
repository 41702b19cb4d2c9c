#pragma once

#include "GUI_ModelessPatternDialog.h"

class JS_Mediator_WrenTableDialog;

/// The window of the camera table. It opens where it was closed. GUI thread.
class GUI_WrenTableDialog : public GUI_ModelessPatternDialog {
    Q_OBJECT

public:
    /// `bridge` is owned from here on; `host` and `plugin` outlive the dialog.
    GUI_WrenTableDialog(ZebHost* host, const QString& title, const QString& url, JS_Mediator_WrenTableDialog* bridge,
                        PLG_Interface* plugin);

    /// A failure of the page goes to the log and no further.
    void updatePage() override;

protected:
    /// Asks the user, unless the host itself is closing.
    void closeEvent(QCloseEvent* event) override;

private:
    void restorePlacement();
    void storePlacement();
    bool mayClose();

    /// The bridge, which the base class owns.
    JS_Mediator_WrenTableDialog* const m_table;
};
