#pragma once

#include <QString>
#include <QVariantMap>

/// The settings of a camera, or of one head of a device with several, as a file keeps them.
struct HeadSettings {
    /// Of the device.
    QString address;
    /// From 1 on.
    int head = 1;
    /// As plain data, by the names of `CameraState::settings`; a file need not have all of them.
    QVariantMap settings;
};
