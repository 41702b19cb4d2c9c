#pragma once

#include <QList>
#include <QStringList>

/// What a camera has to say before it records.
struct CameraAlerts {
    /// Empty when it can't be read.
    QString cameraName;
    /// Of the device that the camera is a head of; empty without one.
    QStringList device;
    QStringList own;
    /// Its record rate is not the frequency of the common signal.
    bool differsFromSignal = false;
};

/// A line for each problem, in the order of the cameras: what the device says once a camera, then the signal, which
/// reads `signalText`, then what the camera says beside that.
QStringList problemLines(const QList<CameraAlerts>& cameras, const QString& signalText);
