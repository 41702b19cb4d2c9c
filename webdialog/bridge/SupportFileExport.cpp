#include "SupportFileExport.h"

#include "APP_ConcurrentException.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebSupportFile.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QtConcurrent>

#include <algorithm>

namespace {

constexpr auto LastDirectory = "support/dir";

/// Runs on a worker's thread.
void writeFile(ZebHost* host, const QString& path, const ZebSupportFile& file) {
    try {
        if (!host->exportSupportFile(path, file)) {
            throw APP_Exception(TextKey("Failed to save support file."));
        }
    } catch (const APP_Exception& e) {
        throw APP_ConcurrentException(e);
    } catch (const std::exception& e) {  // else the worker would drop the text
        throw APP_ConcurrentException(APP_Exception(QString::fromUtf8(e.what())));
    }
}

/// Keeps a worker from outliving what it was started for, on every way out.
class WorkerEnd {
public:
    explicit WorkerEnd(QFuture<void> worker) : m_worker(std::move(worker)) {}
    ~WorkerEnd() {
        try {
            m_worker.waitForFinished();
        } catch (...) {  // whoever asks the worker for its outcome has been told
        }
    }
    Q_DISABLE_COPY(WorkerEnd)

private:
    QFuture<void> m_worker;
};

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
    QFutureWatcher<void> watcher;
    watcher.setFuture(QtConcurrent::run(writeFile, &m_host, path, file));
    const WorkerEnd end(watcher.future());
    m_host.execProgress(TextKey("Saving..."), watcher);
    // Asked here and not by the host, which must not meet an exception of ours.
    watcher.waitForFinished();
}
