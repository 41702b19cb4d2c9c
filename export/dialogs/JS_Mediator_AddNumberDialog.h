#pragma once

#include "JS_Mediator_Dialog.h"
#include "NameFamilies.h"

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
    /// What the keys of the digits begin with; empty for a slot that has none, of which nothing is to be stored.
    QString getNumberKey() { return numberKey(m_slot); }
    /// Numbers of those digits, each 1.
    QString preview(int deviceDigits, int headDigits, int sessionDigits);
    /// As many as the documents need, and the heads; 0 for one head.
    int getAutoDeviceDigits() { return autoDigits(m_counts).camera; }
    int getAutoHeadDigits() { return autoDigits(m_counts).head; }

private:
    const int m_slot;
    const DeviceCounts m_counts;
};
