#include "ModalRun.h"

#include <QFileDialog>

QString chosenFile(QFileDialog* dialog) {
    ModalRun run(dialog);
    return run.exec() == QDialog::Accepted ? dialog->selectedFiles().value(0) : QString();
}
