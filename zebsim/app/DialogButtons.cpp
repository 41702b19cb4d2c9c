#include "DialogButtons.h"

#include <QDialog>
#include <QDialogButtonBox>

QDialogButtonBox* addOkCancel(QDialog& dialog, const QString& accept) {
    auto* buttons = new QDialogButtonBox(&dialog);
    buttons->addButton(accept, QDialogButtonBox::AcceptRole);
    buttons->addButton(uiText("Cancel"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}
