#pragma once

#include "CameraModel.h"
#include "CameraState.h"
#include "HubState.h"

#include <QList>
#include <QString>

#include <memory>
#include <stdexcept>

/// A device as a rig describes it.
struct RigDevice {
    QString address;
    std::shared_ptr<const CameraModel> model;
    /// Time that a command takes, in milliseconds.
    int latency = 0;
    /// False: it waits for a search to find it.
    bool found = true;
    /// What each head starts with; a camera of one head has one.
    QList<CameraState> heads;
};

/// A Sync Hub as a rig describes it.
struct RigHub {
    QString address;
    HubState state;
};

/// What to simulate: cameras in the order in which the host shows them, and Sync Hubs.
struct Rig {
    QList<RigDevice> devices;
    QList<RigHub> hubs;

    /// Reads a rig file: a path, or the name of a rig that ships (as "eight-mixed"). Throws `RigError`.
    static Rig fromFile(const QString& pathOrName);
    /// `count` cameras of the model "standard", found and not connected, named "Camera 1" and so on.
    static Rig standard(int count);
    /// Names of the rigs that ship.
    static QStringList names();
};

/// A rig or models file that can't be used. The text names the file and the member.
class RigError : public std::runtime_error {
public:
    explicit RigError(const QString& text) : std::runtime_error(text.toStdString()) {}
};
