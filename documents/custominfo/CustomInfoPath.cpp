#include "CustomInfoPath.h"

#include "OverActiveWindow.h"
#include "ZebHost.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

namespace {

const QString FolderPref = QStringLiteral("xml/dir");

/// Of a folder that is gone the dialog would take the last part for the name of a file.
QString keptFolder(const ZebHost& host) {
    const QString folder = host.getPrefString(FolderPref);
    return QFileInfo(folder).isDir() ? folder : QString();
}

QString choose(ZebHost& host, QWidget* parent, const QString& filter, QFileDialog::AcceptMode mode) {
    // Qt's own functions for this have the dialog on the stack, where it must not go with its parent.
    const QPointer<QFileDialog> dialog(new QFileDialog(parent, {}, keptFolder(host), filter));
    dialog->setAcceptMode(mode);
    dialog->setFileMode(mode == QFileDialog::AcceptSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    QString path;
    {
        const OverActiveWindow over(*dialog);
        if (dialog->exec() == QDialog::Accepted && dialog) {
            path = dialog->selectedFiles().value(0);
        }
        delete dialog;
    }
    if (!path.isEmpty()) {
        host.setPrefString(FolderPref, QFileInfo(path).path());
    }
    return path;
}

}  // namespace

QString chooseCustomInfoToRead(ZebHost& host, QWidget* parent) {
    return choose(host, parent, QStringLiteral("xml (*.xml *.XML)"), QFileDialog::AcceptOpen);
}

QString chooseCustomInfoToWrite(ZebHost& host, QWidget* parent) {
    return choose(host, parent, QStringLiteral("xml (*.xml)"), QFileDialog::AcceptSave);
}
