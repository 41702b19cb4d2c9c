#include "RecordingGuard.h"

#include "Camera.h"
#include "SimHost.h"
#include "UiText.h"

#include <QtDebug>

namespace {

/// A line for each camera that is armed or records.
QStringList camerasUnderWay(const CameraBank& cameras) {
    QStringList lines;
    for (const Camera* camera : cameras.connectedOfRig()) {
        if (!camera->isUnderWay()) {
            continue;
        }
        const bool records = camera->recordState() == zeb::RecordRecording;
        lines.append((records ? uiText("%1: records") : uiText("%1: is armed")).arg(cameras.labelOf(*camera)));
    }
    return lines;
}

}  // namespace

bool mayLetGoOfRecording(SimHost& host, const QString& question) {
    if (!host.recorder().isUnderWay()) {
        return true;
    }
    const QStringList asked = camerasUnderWay(host.cameras());
    if (!host.messages().agrees(question, asked)) {
        qInfo() << "Cameras that are armed or recording are kept:" << asked;
        return false;
    }
    // What has been recorded by now was not what the question was about.
    if (host.recorder().isUnderWay()) {
        qInfo() << "Cameras that are armed or recording may be let go:" << camerasUnderWay(host.cameras());
        return true;
    }
    host.messages().tell(Message::Info, uiText("The recording has ended meanwhile. Nothing was done."));
    return false;
}

bool mayEndConversion(SimHost& host) {
    return !host.saver().isBgConverting() ||
           host.messages().agrees(uiText("Recordings are being converted. Close the viewer all the same?"), {});
}
