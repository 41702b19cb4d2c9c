#include "CustomInfoPath.h"

#include "ZebHost.h"

#include <QFileDialog>
#include <QFileInfo>

namespace {

const QString FolderPref = QStringLiteral("xml/dir");

QString keptFolderOf(ZebHost& host, const QString& path) {
    if (!path.isEmpty()) {
        host.setPrefString(FolderPref, QFileInfo(path).path());
    }
    return path;
}

}  // namespace

QString chooseCustomInfoToRead(ZebHost& host, QWidget* parent) {
    return keptFolderOf(host, QFileDialog::getOpenFileName(parent, {}, host.getPrefString(FolderPref),
                                                           QStringLiteral("xml (*.xml *.XML)")));
}

QString chooseCustomInfoToWrite(ZebHost& host, QWidget* parent) {
    return keptFolderOf(
        host, QFileDialog::getSaveFileName(parent, {}, host.getPrefString(FolderPref), QStringLiteral("xml (*.xml)"),
                                           nullptr, QFileDialog::DontConfirmOverwrite));
}
