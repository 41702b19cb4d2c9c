#pragma once

#include "JS_Mediator_Dialog.h"

/// What the page that chooses the digits of the numbers in a name can ask. GUI thread.
class JS_Mediator_AddNumberDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// `slot` as in `slotKey`; the name is for that many documents, of devices with that many heads.
    JS_Mediator_AddNumberDialog(ZebHost* host, int slot, int documents, int heads, QObject* parent = nullptr);

public Q_SLOTS:
    /// Whether the name says nothing of cameras and heads, as in file mode and for what is converted.
    bool isFileMode() override;
    /// The slot.
    int getCallbackType() { return m_slot; }
    /// Numbers of those digits, each 1.
    QString preview(int deviceDigits, int headDigits, int sessionDigits);
    /// As many as the documents need, and the heads; 0 for one head.
    int getAutoDeviceDigits();
    int getAutoHeadDigits();

private:
    const int m_slot;
    const int m_documents;
    const int m_heads;
};
