#include "JS_Mediator_AddNumberDialog.h"

#include "NameFamilies.h"

namespace {

int lengthOf(int number) {
    return QString::number(number).size();
}

}  // namespace

JS_Mediator_AddNumberDialog::JS_Mediator_AddNumberDialog(ZebHost* host, int slot, int documents, int heads,
                                                         QObject* parent)
    : JS_Mediator_Dialog(host, QStringLiteral("addnumberdialog"), parent),
      m_slot(slot),
      m_documents(documents),
      m_heads(heads) {}

bool JS_Mediator_AddNumberDialog::isFileMode() {
    return slotKey(m_slot).startsWith(QLatin1String("convert/")) || JS_Mediator_Dialog::isFileMode();
}

QString JS_Mediator_AddNumberDialog::preview(int deviceDigits, int headDigits, int sessionDigits) {
    const bool isFile = isFileMode();
    return numberText(1, 1, 1, isFile ? 0 : deviceDigits, isFile ? 0 : headDigits, sessionDigits);
}

int JS_Mediator_AddNumberDialog::getAutoDeviceDigits() {
    return lengthOf(m_documents);
}

int JS_Mediator_AddNumberDialog::getAutoHeadDigits() {
    return m_heads < 2 ? 0 : lengthOf(m_heads);
}
