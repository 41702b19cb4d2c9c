#include "SnapShots.h"

#include "Camera.h"
#include "FileError.h"
#include "FileWriter.h"
#include "FramePicture.h"
#include "GUI_SaveDialog.h"
#include "HostDisk.h"
#include "InformationFile.h"
#include "MediaRoom.h"
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

std::optional<Recording> recordingOf(const SimHost& host, const Camera& camera) {
    return host.isLiveMode() ? std::nullopt : camera.recording();
}

FileMetadata metadataOf(const SimHost& host, const Camera& camera, const CameraFrame& frame) {
    const auto recording = recordingOf(host, camera);
    return FileMetadata::of(recording ? FrameMetadata::recorded(*recording, frame)
                                      : FrameMetadata::live(camera.state(), frame));
}

SaveOrders ordersOf(const SimHost& host) {
    const auto pref = [&host](const QString& key) { return host.prefs().value(key); };
    SaveOrders orders = chosenOrders(pref, nameFamily(zeb::SnapShotFile));
    // A snapshot is one picture in one file.
    orders.format.options.isMultiPage = false;
    orders.format = orders.format.isVideo() ? saveFormats().first() : orders.format;
    return orders;
}

void writeInformation(const SimHost& host, const Camera& camera, const CameraFrame& frame, const SaveOrders& orders,
                      const QString& stem, const QString& file, Over over) {
    const auto recording = recordingOf(host, camera);
    const int inMemory = recording ? int(frame.number) + recording->zero : 0;
    const RecordingInformation information =
        informationOf(camera, recording, inMemory, orders.format, file, orders.date);
    writeFile(informationPath(stem), information.toJson(), over);
}

/// Answers its path. Throws.
QString writePicture(SimHost& host, const CameraFrame& frame, const QImage& image) {
    const DOCKEY key = host.docManager().currentKey();
    const Camera* camera = host.cameras().find(key);
    const SaveOrders orders = ordersOf(host);
    const QString stem = snapShotStem(host, key, orders.date);
    const QString file = stem % QLatin1Char('.') % orders.format.suffix;
    const QString folder = QFileInfo(file).path();
    if (!QDir().mkpath(folder)) {
        throw FileError(folder, TextKey("there can't be such a folder"));
    }
    const QByteArray bytes =
        camera ? orders.format.encoded(image, metadataOf(host, *camera, frame), camera->model().bitDepth)
               : orders.format.encoded(image, {});
    if (bytes.isEmpty()) {
        throw FileError(file, TextKey("the picture has no such form"));
    }
    const Over over = host.prefs().value("snap/overwrite").toBool() ? Over::OldFile : Over::Nothing;
    // The information beside an older picture would become that of another one.
    if (orders.hasInformation && over == Over::Nothing && QFileInfo::exists(informationPath(stem))) {
        throw FileError(informationPath(stem), TextKey("a file of that name is there already"));
    }
    HostDisk disk(host.shelf(), host.cameras());
    for (const QString& path : {file, informationPath(stem)}) {
        if (disk.isOpen(QFileInfo(path).canonicalFilePath())) {
            throw FileError(path, TextKey("it is of a recording that is open"));
        }
    }
    const QString fault = MediaRoom(host.shelf()).fault(file, bytes.size());
    if (!fault.isEmpty()) {
        throw FileError(file, fault);
    }
    writeFile(file, bytes, over);
    if (orders.hasInformation && camera) {
        writeInformation(host, *camera, frame, orders, stem, file, over);
    }
    return file;
}

void tryToWrite(SimHost& host, const CameraFrame& frame, const QImage& image) {
    try {
        const QString file = writePicture(host, frame, image);
        if (host.prefs().value("snap/notify").toBool()) {
            host.messages().notify(Message::Info, uiText("Written: %1").arg(QDir::toNativeSeparators(file)));
        }
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
    QImage image;
    try {
        image = drawFrame(*frame, frame->resolution);
    } catch (const FileError& e) {
        host.messages().tell(Message::Alert, unreadableText(e));
        return;
    }
    if (mode == ToClipboard || mode == ToBoth) {
        QGuiApplication::clipboard()->setImage(image);
    }
    if (mode == ToFile || mode == ToBoth) {
        tryToWrite(host, *frame, image);
    }
}
