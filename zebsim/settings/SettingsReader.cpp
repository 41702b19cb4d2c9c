#include "SettingsReader.h"

#include "CameraState.h"
#include "DeviceAddress.h"
#include "ImageEffects.h"
#include "JsonNode.h"
#include "PlainState.h"
#include "SettingLimits.h"
#include "SettingsForm.h"

#include <QSet>

namespace {

constexpr int MostHeads = 255;

void checkForm(const JsonNode& root) {
    if (!root.isObject() || !root.has(settingsform::Version)) {
        root.fail(QStringLiteral("this is no file of camera settings"));
    }
    const JsonNode version = root.member(settingsform::Version);
    if (version.number(1, std::numeric_limits<int>::max()) > settingsform::PresentVersion) {
        version.fail(QStringLiteral("this is version %1 of the form, and none later than %2 is known here")
                         .arg(version.number(1, std::numeric_limits<int>::max()))
                         .arg(settingsform::PresentVersion));
    }
}

QVariantMap readMembers(const JsonNode& node) {
    node.allowOnly(CameraState::settings());
    try {
        return checkSettings(node.plain());
    } catch (const StateError& error) {
        node.failAt(error.member, error.reason);
    }
}

QList<HeadSettings> readDevice(const JsonNode& node) {
    node.allowOnly({settingsform::Address, settingsform::Heads});
    const QString address = readDeviceAddress(node.member(settingsform::Address));
    QList<HeadSettings> heads;
    QSet<int> numbers;
    for (const JsonNode& item : node.member(settingsform::Heads).items()) {
        item.allowOnly({settingsform::Head, settingsform::Settings});
        const int number = item.member(settingsform::Head).number(1, MostHeads);
        if (numbers.contains(number)) {
            item.failAt(settingsform::Head, QStringLiteral("head %1 stands twice").arg(number));
        }
        numbers.insert(number);
        heads.append({address, number, readMembers(item.member(settingsform::Settings))});
    }
    return heads;
}

QList<HeadSettings> readFile(const JsonNode& root) {
    checkForm(root);
    root.allowOnly({settingsform::Version, settingsform::Cameras});
    QList<HeadSettings> heads;
    QSet<QString> addresses;
    for (const JsonNode& node : root.member(settingsform::Cameras).items()) {
        const QList<HeadSettings> device = readDevice(node);
        const QString address = node.member(settingsform::Address).text();
        if (addresses.contains(address)) {
            node.failAt(settingsform::Address, QStringLiteral("%1 stands twice").arg(address));
        }
        addresses.insert(address);
        heads += device;
    }
    return heads;
}

}  // namespace

QVariantMap checkSettings(const QVariantMap& members) {
    CameraState state;
    state.apply(members);
    const QVariantMap settings = state.toPlain(members.keys());
    checkLimits(settings);
    checkPluginValues(state);
    return settings;
}

QList<HeadSettings> readSettings(const QString& path) {
    return readFile(JsonNode::fromFile(path));
}

QList<HeadSettings> readSettingsText(const QString& file, const QByteArray& text) {
    return readFile(JsonNode::fromText(file, text));
}
