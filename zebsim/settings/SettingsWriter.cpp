#include "SettingsWriter.h"

#include "CameraState.h"
#include "SettingsForm.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

namespace {

const QByteArray Step(4, ' ');

QByteArray inOneLine(const QVariant& value) {
    // A document is a list or an object.
    const QByteArray list = QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

QByteArray member(const QString& name, const QByteArray& value) {
    return '"' + name.toLatin1() + "\": " + value;
}

/// With `open` and `close` around it, each part in lines of its own.
QByteArray block(char open, const QList<QByteArray>& parts, char close, int level) {
    const QByteArray line = '\n' + Step.repeated(level);
    return open + line + Step + parts.join(',' + line + Step) + line + close;
}

QByteArray headText(const HeadSettings& head) {
    QList<QByteArray> settings;
    for (const QString& name : CameraState::settings()) {
        if (head.settings.contains(name)) {
            settings.append(member(name, inOneLine(head.settings.value(name))));
        }
    }
    const QList<QByteArray> parts{member(settingsform::Head, inOneLine(head.head)),
                                  member(settingsform::Settings, block('{', settings, '}', 5))};
    return block('{', parts, '}', 4);
}

QByteArray deviceText(const QString& address, const QList<QByteArray>& heads) {
    const QList<QByteArray> parts{member(settingsform::Address, inOneLine(address)),
                                  member(settingsform::Heads, block('[', heads, ']', 3))};
    return block('{', parts, '}', 2);
}

}  // namespace

QByteArray writeSettings(const QList<HeadSettings>& heads) {
    QList<QByteArray> devices;
    QList<QByteArray> device;
    for (int i = 0; i < heads.size(); ++i) {
        device.append(headText(heads.at(i)));
        if (i + 1 == heads.size() || heads.at(i + 1).address != heads.at(i).address) {
            devices.append(deviceText(heads.at(i).address, device));
            device.clear();
        }
    }
    const QList<QByteArray> parts{member(settingsform::Version, inOneLine(settingsform::PresentVersion)),
                                  member(settingsform::Cameras, block('[', devices, ']', 1))};
    return block('{', parts, '}', 0) + '\n';
}
