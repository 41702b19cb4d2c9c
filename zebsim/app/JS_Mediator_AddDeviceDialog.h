#pragma once

#include "JS_Mediator_Dialog.h"
#include "ZebTypes.h"

#include <QJsonObject>

class Camera;
class CameraBank;
class SimHost;

/// What the page that adds a camera, or edits one, can ask and do. GUI thread.
class JS_Mediator_AddDeviceDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// `key` is that of the camera to edit; `zeb::NoDocKey` to add one.
    JS_Mediator_AddDeviceDialog(SimHost& host, DOCKEY key);

public Q_SLOTS:
    /// JSON with `adds`, whether a camera is added, and of one that is edited `address`, `name` and `comment`.
    QString getDevice();
    /// The camera, that at the JSON's `address` when one is added, gets its `name` and `comment`, and the dialog is
    /// closed. It stays when no camera can be added there, or the one that is edited is locked, and the user knows
    /// why. What the page was told and nobody has changed stays as the camera has it by now.
    void ok(const QString& sendData);

private:
    Camera* addedAt(const QString& address);
    void take(Camera& camera, const QJsonObject& data);

    CameraBank& m_cameras;
    const DOCKEY m_key;
    /// What the page was told.
    QJsonObject m_shown;
};
