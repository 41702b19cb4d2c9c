#include "SettingsFolder.h"

#include "ZebHost.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace {

const QString FolderPref = QStringLiteral("rigx/path");

}  // namespace

QString settingsFolder(const ZebHost& host) {
    const QString folder = host.getPrefString(FolderPref);
    if (!folder.isEmpty() && QFileInfo(folder).isDir()) {
        return folder;
    }
    return QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation).value(0) %
           QStringLiteral("/Kestrel/ZEB4");
}

void rememberSettingsFolder(ZebHost& host, const QString& folder) {
    host.setPref(FolderPref, folder);
}
