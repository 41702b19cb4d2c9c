#pragma once

#include "JS_Mediator_Dialog.h"
#include "ZebTypes.h"

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
    /// closed. It stays when no camera can be added there, and the user knows why. A camera that is added without a
    /// name keeps its own.
    void ok(const QString& sendData);

private:
    Camera* addedAt(const QString& address);

    CameraBank& m_cameras;
    const DOCKEY m_key;
};
