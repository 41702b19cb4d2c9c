#include "FolderChoice.h"

#include "ModalRun.h"
#include "TextKey.h"
#include "ZebHost.h"

#include <QFileDialog>
#include <QFileInfo>

QString chooseFolder(ZebHost& host, const QString& start) {
    // Of a folder that is gone the dialog would take the last part for the name of a file.
    const QString folder = start.isEmpty() ? QString() : nearestFolder(start);
    auto* dialog = new QFileDialog(host.getMainWindow(), host.translate(TextKey("Select folder")), folder);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    return chosenFile(dialog);
}

QString nearestFolder(const QString& path) {
    QFileInfo folder(path);
    while (!folder.isDir() && !folder.isRoot()) {
        folder.setFile(folder.path());
    }
    return folder.filePath();
}
