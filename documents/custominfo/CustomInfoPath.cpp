#include "CustomInfoPath.h"

#include "ModalRun.h"
#include "ZebHost.h"

#include <QFileDialog>
#include <QFileInfo>

namespace {

const QString FolderPref = QStringLiteral("xml/dir");

/// Of a folder that is gone the dialog would take the last part for the name of a file.
QString keptFolder(const ZebHost& host) {
    const QString folder = host.getPrefString(FolderPref);
    return QFileInfo(folder).isDir() ? folder : QString();
}

QString choose(ZebHost& host, QWidget* parent, const QString& filter, QFileDialog::AcceptMode mode) {
    // Qt's own functions for this have the dialog on the stack, where it must not go with its parent.
    auto* dialog = new QFileDialog(parent, {}, keptFolder(host), filter);
    dialog->setAcceptMode(mode);
    dialog->setFileMode(mode == QFileDialog::AcceptSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    const QString path = chosenFile(dialog);
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
