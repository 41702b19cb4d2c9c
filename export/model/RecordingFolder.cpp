#include "RecordingFolder.h"

#include "FolderChoice.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebMedia.h"

#include <QDir>

namespace {

constexpr auto ImportFolder = "import/dir";

/// Paths of the files in a folder that tell what was recorded.
QStringList recordingsIn(const QString& folder) {
    QStringList patterns;
    for (const char* suffix : {"cih", "cihx"}) {
        const QString pattern = QStringLiteral("*.%1").arg(QLatin1String(suffix));
        patterns << pattern << pattern.toUpper();
    }
    const QDir dir(folder);
    QStringList paths;
    // What is no file, or has a name that can't be read, is told as one that can't be opened.
    for (const QString& name : dir.entryList(patterns, QDir::Files | QDir::System, QDir::Name)) {
        paths.append(dir.filePath(name));
    }
    return paths;
}

}  // namespace

bool openRecordingFolder(ZebHost& host) {
    const QString folder = chooseFolder(host, host.getPrefString(QLatin1String(ImportFolder)));
    if (folder.isEmpty()) {
        return false;
    }
    host.setPrefString(QLatin1String(ImportFolder), folder);
    const QStringList paths = recordingsIn(folder);
    if (paths.isEmpty()) {
        host.info(host.translate(TextKey("There is no recording in %1.")).arg(folder), nullptr);
        return false;
    }
    host.docManager().media().openFiles(paths);
    return true;
}
