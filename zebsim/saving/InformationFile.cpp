#include "InformationFile.h"

#include "Camera.h"
#include "SaveOrders.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// A JSON object sorts its members, and the first one tells what the file is.
class Members {
public:
    void add(const char* name, const QJsonValue& value) {
        const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        m_json += (m_json.isEmpty() ? "{\n  \"" : ",\n  \"") + QByteArray(name) + "\": " + list.mid(1, list.size() - 2);
    }
    QByteArray json() const { return m_json + "\n}\n"; }

private:
    QByteArray m_json;
};

QJsonObject plain(const SaveFormat& format) {
    QJsonObject object{{QStringLiteral("id"), format.id}};
    if (format.isVideo()) {
        object[QStringLiteral("codec")] = format.video.used().name;
        object[QStringLiteral("lossless")] = format.video.isLossless;
        object[QStringLiteral("rate")] = format.video.rate;
    } else {
        object[QStringLiteral("depth")] = format.options.depth;
        object[QStringLiteral("lower")] = format.options.isLower;
        object[QStringLiteral("pages")] = format.isOneFile();
    }
    return object;
}

}  // namespace

QByteArray RecordingInformation::toJson() const {
    Members members;
    members.add("zebsim", QStringLiteral("recording"));
    members.add("version", Version);
    members.add("camera", camera);
    members.add("address", address);
    members.add("model", model);
    members.add("comment", comment);
    members.add("bits", bits);
    members.add("rate", double(recording.rate));
    members.add("shutter", recording.shutter);
    members.add("resolution", QJsonArray{recording.resolution.width(), recording.resolution.height()});
    members.add("range", QJsonArray{recording.first, recording.last});
    members.add("trigger", recording.trigger);
    members.add("zero", recording.zero);
    const int last = recording.selectedFirst + (frames - 1) * step;
    members.add("saved", QJsonObject{{QStringLiteral("first"), recording.selectedFirst},
                                     {QStringLiteral("last"), last},
                                     {QStringLiteral("step"), step}});
    members.add("partition", double(recording.partition));
    members.add("partitionName", partitionName);
    members.add("items", QJsonArray::fromVariantList(recording.customInfo.toPlain()));
    if (!recording.shoot.isEmpty()) {
        members.add("shoot", recording.shoot);
    }
    members.add("date", date.toString(Qt::ISODate));
    members.add("format", plain(format));
    members.add("files", QJsonArray::fromStringList(files));
    return members.json();
}

RecordingInformation RecordingInformation::of(const Camera& camera, const CameraState& state,
                                              const Recording& recording) {
    RecordingInformation information;
    information.camera = state.name;
    information.address = camera.device().address();
    information.model = camera.model().name;
    information.comment = state.comment;
    information.partitionName = state.partitionNames.value(int(recording.partition) - 1);
    information.bits = camera.model().bitDepth;
    information.recording = recording;
    return information;
}

QString informationPath(const QString& stem) {
    return stem % QStringLiteral(".cih");
}

RecordingInformation informationOf(const SaveOrders& orders, const SaveTrack& track, int saved) {
    RecordingInformation information = track.sources.front().information();
    information.step = track.step;
    information.format = orders.format;
    information.date = orders.date;
    information.frames = saved;
    const int files = orders.format.isOneFile() ? std::min(saved, 1) : saved;
    for (int index = 0; index < files; ++index) {
        information.files << QFileInfo(orders.fileOf(track, index)).fileName();
    }
    return information;
}

RecordingInformation informationOf(const Camera& camera, const std::optional<Recording>& recording, int frame,
                                   const SaveFormat& format, const QString& file, const QDateTime& date) {
    const CameraState state = camera.state();
    Recording live;
    live.rate = state.rate;
    live.shutter = state.shutter;
    live.resolution = state.resolution;
    live.customInfo = state.customInfo;
    live.partition = state.partition;
    RecordingInformation information = RecordingInformation::of(camera, state, recording.value_or(live));
    information.recording.selectedFirst = frame;
    information.recording.selectedLast = frame;
    information.format = format;
    information.date = date;
    information.files = QStringList(QFileInfo(file).fileName());
    information.frames = 1;
    return information;
}
