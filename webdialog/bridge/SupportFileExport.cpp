#include "SupportFileExport.h"

#include "APP_Exception.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "TextKey.h"
#include "WorkerCall.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebSupportFile.h"

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr auto LastDirectory = "support/dir";

}  // namespace

// The stand-in host writes these in `addHostState` and `AppWindows::addToSupportFile`.
QStringList supportFileContents(bool cameraLog, bool tableWindow) {
    QStringList contents = {TextKey("- Camera setting values"), TextKey("- ZEB setting values"),
                            TextKey("- ZEB operation log"), TextKey("- SDK operation log")};
    if (cameraLog) {
        contents += TextKey("- Camera log");
    }
    contents += {TextKey("- PC environment"), TextKey("- ZEB version"), TextKey("- ZEB full screen capture")};
    if (tableWindow) {
        contents += TextKey("- WREN window screen capture");
    }
    contents += TextKey("- Currently displayed image data (1 frame)");
    return contents;
}

void SupportFileExport::run() {
    if (!userAgrees()) {
        return;
    }
    const QString path = askPath();
    if (path.isEmpty()) {
        return;
    }
    write(path);
    m_host.info(m_host.translate(TextKey("Please attach preserved file to a mail.")), nullptr);
    m_host.setPref(QLatin1String(LastDirectory), QFileInfo(path).path());
}

bool SupportFileExport::userAgrees() {
    QString question =
        m_host.translate(TextKey("The information below will be output in ZIP file format. Do you want to proceed?")) %
        QStringLiteral("<br>");
    for (const QString& content : supportFileContents(hasCameraLog(), m_host.hasWrenWindow())) {
        question += QStringLiteral("<br>") % m_host.translate(content);
    }
    return m_host.confirmModal(question, m_host.getMainWindow(), {});
}

bool SupportFileExport::hasCameraLog() {
    const DocList cameras = m_host.docManager().getCameraDocs();
    return std::any_of(cameras.begin(), cameras.end(), [](DOC_Interface* doc) {
        return doc->control().isFunctionSupported(zeb::FunctionCameraLog, 1) ||
               doc->control().isFunctionSupported(zeb::FunctionCameraLogFile, 1);
    });
}

QString SupportFileExport::askPath() {
    return QFileDialog::getSaveFileName(m_host.getMainWindow(), m_host.translate(TextKey("Export support file")),
                                        m_host.getPref(QLatin1String(LastDirectory)).toString(),
                                        QStringLiteral("zip (*.zip)"), nullptr, QFileDialog::DontConfirmOverwrite);
}

void SupportFileExport::write(const QString& path) {
    ZebSupportFile file;
    m_host.prepareSupportFile(file);
    callOnWorker(m_host, TextKey("Saving..."), [this, &path, &file] {
        if (!m_host.exportSupportFile(path, file)) {
            throw APP_Exception(TextKey("Failed to save support file."));
        }
    });
}
