#pragma once

#include "JS_Mediator_Dialog.h"
#include "PLG_Interface.h"

#include <QPointer>

/// Bridge of a page in the dialog of a plug-in. GUI thread.
class JS_Mediator_ModelessPatternDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// `plugin` is not owned; it may go while a call of the bridge still runs.
    JS_Mediator_ModelessPatternDialog(ZebHost* host, const QString& name, PLG_Interface* plugin,
                                      QObject* parent = nullptr);

public Q_SLOTS:
    /// The page's answer to the signal `open`.
    virtual void onOpen() {}
    /// The page's answer to the signal `close`: closes the plug-in's dialog.
    virtual void onClose();
    void setTextBoxFocusState(bool focused);

protected:
    /// A text box of the page does not keep the keyboard beyond the page.
    void releaseTextBox();
    /// Null once the plug-in is gone.
    PLG_Interface* plugin() const { return m_plugin; }

private:
    bool m_textBoxFocused = false;
    const QPointer<PLG_Interface> m_plugin;
};
