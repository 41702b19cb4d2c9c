#pragma once

#include "CameraModel.h"
#include "CameraState.h"
#include "HubState.h"

#include <QList>
#include <QString>

#include <memory>

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
};
