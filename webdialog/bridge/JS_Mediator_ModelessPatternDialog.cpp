#include "JS_Mediator_ModelessPatternDialog.h"

#include "BridgeCall.h"
#include "ZebHost.h"

JS_Mediator_ModelessPatternDialog::JS_Mediator_ModelessPatternDialog(ZebHost* host, const QString& name,
                                                                     PLG_Interface* plugin, QObject* parent)
    : JS_Mediator_Dialog(host, name, parent), m_plugin(plugin) {}

void JS_Mediator_ModelessPatternDialog::onClose() {
    call(*this, Plain, __func__, {}, [&] {
        if (m_plugin) {
            m_plugin->closeDialog();
        }
    });
}

void JS_Mediator_ModelessPatternDialog::setTextBoxFocusState(bool focused) {
    call(*this, Plain, __func__, {}, [&] {
        m_textBoxFocused = focused;
        host().setTextBoxFocusState(focused);
    });
}

void JS_Mediator_ModelessPatternDialog::releaseTextBox() {
    if (m_textBoxFocused) {
        setTextBoxFocusState(false);
    }
}
