#include "TableFile.h"

#include "APP_Exception.h"
#include "ModalRun.h"
#include "WholeFile.h"

#include <QFileDialog>

void saveAsTable(QWidget* parent, const QString& csv) {
    auto* dialog = new QFileDialog(parent, {}, {}, QStringLiteral("CSV (*.csv)"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    const QString path = chosenFile(dialog);
    const QString reason = path.isEmpty() ? QString() : writeWholeFile(path, "\xEF\xBB\xBF" + csv.toUtf8());
    if (!reason.isEmpty()) {
        const QString text = path % QLatin1String(": ") % reason;
        throw APP_Exception(text);
    }
}
