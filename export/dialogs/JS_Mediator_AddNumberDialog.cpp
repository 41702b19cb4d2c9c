#include "JS_Mediator_AddNumberDialog.h"

JS_Mediator_AddNumberDialog::JS_Mediator_AddNumberDialog(ZebHost* host, int slot, int documents, int heads,
                                                         QObject* parent)
    : JS_Mediator_Dialog(host, QStringLiteral("addnumberdialog"), parent), m_slot(slot), m_counts{documents, heads} {}

bool JS_Mediator_AddNumberDialog::isFileMode() {
    return slotKey(m_slot).startsWith(QLatin1String("convert/")) || JS_Mediator_Dialog::isFileMode();
}

QString JS_Mediator_AddNumberDialog::preview(int deviceDigits, int headDigits, int sessionDigits) {
    const bool isFile = isFileMode();
    return numberText(1, 1, 1, isFile ? 0 : deviceDigits, isFile ? 0 : headDigits, sessionDigits);
}
