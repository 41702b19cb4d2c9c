#include "SnapShots.h"

#include "Camera.h"
#include "FileError.h"
#include "FileWriter.h"
#include "FramePicture.h"
#include "GUI_SaveDialog.h"
#include "SaveOrders.h"
#include "SaveTargets.h"
#include "SimHost.h"
#include "TextKey.h"
#include "UiText.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

namespace {

enum Mode { ToFile = 1, ToClipboard = 2, ToBoth = 3, Settings = 4 };

FileMetadata metadataOf(const SimHost& host, const Camera& camera, const CameraFrame& frame) {
    const auto recording = host.isMemoryMode() ? camera.recording() : std::nullopt;
    return FileMetadata::of(recording ? FrameMetadata::recorded(*recording, frame)
                                      : FrameMetadata::live(camera.state(), frame));
}

/// A snapshot is one picture in one file.
SaveFormat formatOf(const SimHost& host) {
    const auto pref = [&host](const QString& key) { return host.prefs().value(key); };
    SaveFormat format = chosenOrders(pref, nameFamily(zeb::SnapShotFile)).format;
    format.options.isMultiPage = false;
    return format.isVideo() ? saveFormats().first() : format;
}

/// Throws.
void writePicture(SimHost& host, const CameraFrame& frame, const QImage& image) {
    const DOCKEY key = host.docManager().currentKey();
    const Camera* camera = host.cameras().find(key);
    const SaveFormat format = formatOf(host);
    const QString file = snapShotStem(host, key, QDateTime::currentDateTime()) % QLatin1Char('.') % format.suffix;
    const QString folder = QFileInfo(file).path();
    if (!QDir().mkpath(folder)) {
        throw FileError(folder, TextKey("there can't be such a folder"));
    }
    const QByteArray bytes = camera ? format.encoded(image, metadataOf(host, *camera, frame), camera->model().bitDepth)
                                    : format.encoded(image, {});
    if (bytes.isEmpty()) {
        throw FileError(file, TextKey("the picture has no such form"));
    }
    writeFile(file, bytes, Over::Nothing);
}

void tryToWrite(SimHost& host, const CameraFrame& frame, const QImage& image) {
    try {
        writePicture(host, frame, image);
    } catch (const FileError& e) {
        host.messages().tell(Message::Alert,
                             uiText("%1 can't be written: %2")
                                 .arg(QDir::toNativeSeparators(e.file()), uiText(QString::fromUtf8(e.what()))));
    } catch (const std::exception& e) {
        host.messages().tell(Message::Alert, uiText(QString::fromUtf8(e.what())));
    }
}

}  // namespace

void takeSnapShot(SimHost& host, const std::optional<CameraFrame>& frame, int mode) {
    if (mode == Settings) {
        runSnapShotSettings(host);
        return;
    }
    if (!frame) {
        host.messages().tell(Message::Info, uiText("There is no image to take."));
        return;
    }
    const QImage image = drawFrame(*frame, frame->resolution);
    if (mode == ToClipboard || mode == ToBoth) {
        QGuiApplication::clipboard()->setImage(image);
    }
    if (mode == ToFile || mode == ToBoth) {
        tryToWrite(host, *frame, image);
    }
}
