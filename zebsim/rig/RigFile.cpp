#include "RigFile.h"

#include "ByteText.h"
#include "DeviceAddress.h"
#include "JsonError.h"
#include "JsonNode.h"
#include "MediumKind.h"
#include "ModelCatalogue.h"
#include "PlainState.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString shippedFolder = QStringLiteral(":/zebsim/rigs/");
constexpr int longestLatency = 60000;
constexpr int standardLatency = 2;

QString defaultName(int camera) {
    return QStringLiteral("Camera %1").arg(camera);
}

/// Reads the devices and hubs of one rig file; knows what was read so far.
class RigReader {
public:
    explicit RigReader(const ModelCatalogue& models) : m_models(models) {}

    RigDevice readDevice(const JsonNode& node) {
        node.allowOnly({QStringLiteral("address"), QStringLiteral("model"), QStringLiteral("latency"),
                        QStringLiteral("found"), QStringLiteral("heads")});
        RigDevice device;
        device.address = readAddress(node);
        const JsonNode model = node.member(QStringLiteral("model"));
        device.model = m_models.find(model.text());
        if (!device.model) {
            model.fail(QStringLiteral("no model \"%1\"").arg(model.text()));
        }
        if (node.has(QStringLiteral("latency"))) {
            device.latency = node.member(QStringLiteral("latency")).number(0, longestLatency);
        }
        device.found = !node.has(QStringLiteral("found")) || node.member(QStringLiteral("found")).flag();
        device.heads = readHeads(node.member(QStringLiteral("heads")), *device.model);
        return device;
    }

    RigHub readHub(const JsonNode& node) {
        RigHub hub;
        hub.address = readAddress(node);
        QVariantMap members = node.plain();
        members.remove(QStringLiteral("address"));
        try {
            hub.state.apply(members);
        } catch (const StateError& error) {
            node.failAt(error.member, error.reason);
        }
        return hub;
    }

    /// Its folder begins in that of the rig file.
    static RigMedium readMedium(const JsonNode& node, const QDir& home) {
        node.allowOnly({QStringLiteral("kind"), QStringLiteral("name"), QStringLiteral("folder"),
                        QStringLiteral("capacity"), QStringLiteral("password"), QStringLiteral("protected")});
        RigMedium medium;
        const JsonNode word = node.member(QStringLiteral("kind"));
        const MediumKind* kind = mediumKind(word.text());
        if (kind == nullptr) {
            word.fail(QStringLiteral("one of %1 is expected").arg(mediumWords()));
        }
        medium.kind = kind->kind;
        medium.name = node.member(QStringLiteral("name")).text();
        const JsonNode folder = node.member(QStringLiteral("folder"));
        if (folder.text().isEmpty()) {
            folder.fail(QStringLiteral("the path of a folder is expected"));
        }
        medium.folder = home.absoluteFilePath(folder.text());
        if (node.has(QStringLiteral("capacity"))) {
            const JsonNode capacity = node.member(QStringLiteral("capacity"));
            const auto bytes = bytesOf(capacity.text());
            if (!bytes || *bytes <= 0) {
                capacity.fail(QStringLiteral("a size as \"8 GB\" is expected"));
            }
            medium.capacity = *bytes;
        }
        if (node.has(QStringLiteral("password"))) {
            medium.password = node.member(QStringLiteral("password")).text();
        }
        medium.isProtected = node.has(QStringLiteral("protected")) && node.member(QStringLiteral("protected")).flag();
        return medium;
    }

private:
    /// The address of what `owner` describes, which nothing else may have.
    QString readAddress(const JsonNode& owner) {
        const JsonNode node = owner.member(QStringLiteral("address"));
        const QString address = readDeviceAddress(node);
        if (m_owners.contains(address)) {
            node.fail(QStringLiteral("%1 is the address of %2").arg(address, m_owners.value(address)));
        }
        m_owners.insert(address, owner.path());
        return address;
    }

    QList<CameraState> readHeads(const JsonNode& node, const CameraModel& model) {
        QList<CameraState> heads;
        for (const JsonNode& item : node.items()) {
            heads.append(ModelCatalogue::readState(item, model));
            ++m_cameras;
            if (heads.last().name.isEmpty()) {
                heads.last().name = defaultName(m_cameras);
            }
        }
        if (heads.isEmpty()) {
            node.fail(QStringLiteral("a device has at least one head"));
        }
        return heads;
    }

    const ModelCatalogue& m_models;
    /// What has an address already.
    QHash<QString, QString> m_owners;
    int m_cameras = 0;
};

}  // namespace

Rig readRig(const QString& pathOrName) {
    ModelCatalogue models = ModelCatalogue::shipped();
    const QString path =
        shippedRigs().contains(pathOrName) ? QString(shippedFolder % pathOrName % QStringLiteral(".json")) : pathOrName;
    const JsonNode file = JsonNode::fromFile(path);
    file.allowOnly(
        {QStringLiteral("models"), QStringLiteral("devices"), QStringLiteral("hubs"), QStringLiteral("media")});
    if (file.has(QStringLiteral("models"))) {
        models.addFile(QFileInfo(path).dir().filePath(file.member(QStringLiteral("models")).text()));
    }
    Rig rig;
    RigReader reader(models);
    for (const JsonNode& node : file.member(QStringLiteral("devices")).items()) {
        rig.devices.append(reader.readDevice(node));
    }
    if (file.has(QStringLiteral("hubs"))) {
        for (const JsonNode& node : file.member(QStringLiteral("hubs")).items()) {
            rig.hubs.append(reader.readHub(node));
        }
    }
    if (file.has(QStringLiteral("media"))) {
        for (const JsonNode& node : file.member(QStringLiteral("media")).items()) {
            rig.media.append(RigReader::readMedium(node, QFileInfo(path).absoluteDir()));
        }
    }
    return rig;
}

Rig standardRig(int count) {
    const auto model = ModelCatalogue::shipped().find(QStringLiteral("standard"));
    Rig rig;
    for (int i = 0; i < count; ++i) {
        const QString address = QStringLiteral("192.168.%1.%2").arg(i / 200).arg(11 + i % 200);
        CameraState state = model->initial;
        state.name = defaultName(i + 1);
        rig.devices.append(RigDevice{address, model, standardLatency, true, {state}});
    }
    return rig;
}

QStringList shippedRigs() {
    // The catalogue brings the resources.
    ModelCatalogue::shipped();
    QStringList names;
    for (const QString& file : QDir(shippedFolder).entryList(QDir::Files, QDir::Name)) {
        if (file != QStringLiteral("models.json")) {
            names.append(QFileInfo(file).completeBaseName());
        }
    }
    return names;
}
