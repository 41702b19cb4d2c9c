#include "JS_Mediator_AddDeviceDialog.h"

#include "BridgeCall.h"
#include "Camera.h"
#include "CameraBank.h"
#include "SimHost.h"
#include "TextKey.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

bool isAddress(const QString& text) {
    static const QRegularExpression octets(
        QStringLiteral("^((25[0-5]|2[0-4]\\d|1?\\d?\\d)\\.){3}(25[0-5]|2[0-4]\\d|1?\\d?\\d)$"));
    return octets.match(text).hasMatch();
}

}  // namespace

JS_Mediator_AddDeviceDialog::JS_Mediator_AddDeviceDialog(SimHost& host, DOCKEY key)
    : JS_Mediator_Dialog(&host, QStringLiteral("adddevice")), m_cameras(host.cameras()), m_key(key) {}

QString JS_Mediator_AddDeviceDialog::getDevice() {
    return call(*this, Query, __func__, {}, [this] {
        QJsonObject device{{QStringLiteral("adds"), m_key == zeb::NoDocKey}};
        if (const Camera* camera = m_cameras.find(m_key)) {
            device[QStringLiteral("address")] = camera->address();
            device[QStringLiteral("name")] = camera->name();
            device[QStringLiteral("comment")] =
                camera->get(&CameraState::comment).replace(QLatin1String(zeb::CommentSeparator), QLatin1String("\n"));
        }
        m_shown = device;
        return QString::fromUtf8(QJsonDocument(device).toJson(QJsonDocument::Compact));
    });
}

void JS_Mediator_AddDeviceDialog::ok(const QString& sendData) {
    call(*this, Change, __func__, {{"data", sendData}}, [&] {
        const QJsonObject data = QJsonDocument::fromJson(sendData.toUtf8()).object();
        const bool adds = m_key == zeb::NoDocKey;
        Camera* camera = adds ? addedAt(data[QStringLiteral("address")].toString().trimmed()) : m_cameras.find(m_key);
        if (camera && !adds && camera->get(&CameraState::locked)) {
            host().alert(host().translate(TextKey("%1 is locked. Nothing was changed.")).arg(camera->name()), nullptr);
        } else if (camera) {
            take(*camera, data);
            Q_EMIT accept();
        } else if (!adds) {
            Q_EMIT reject();  // it has gone
        }
    });
}

/// What nobody has typed stays as the camera has it by now.
void JS_Mediator_AddDeviceDialog::take(Camera& camera, const QJsonObject& data) {
    const QString name = data[QStringLiteral("name")].toString().trimmed();
    const QString comment = data[QStringLiteral("comment")].toString();
    if (name != m_shown[QStringLiteral("name")].toString()) {
        camera.set(&CameraState::name, name);
    }
    if (comment != m_shown[QStringLiteral("comment")].toString()) {
        camera.set(&CameraState::comment, QString(comment).replace('\n', QLatin1String(zeb::CommentSeparator)));
    }
}

/// Null where none can be added, which is told.
Camera* JS_Mediator_AddDeviceDialog::addedAt(const QString& address) {
    const auto refuse = [this](const QString& why) -> Camera* {
        host().alert(why, nullptr);
        return nullptr;
    };
    if (!isAddress(address)) {
        return refuse(
            host().translate(TextKey("An address is four numbers from 0 to 255 with dots between, as 192.168.0.10.")));
    }
    if (const Camera* listed = m_cameras.listedAt(address)) {
        return refuse(host().translate(TextKey("%1 at %2 is listed already.")).arg(listed->name(), address));
    }
    Camera* found = m_cameras.searchAt(address);
    return found ? found : refuse(host().translate(TextKey("No camera answers at %1.")).arg(address));
}
