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

/// A storage medium as a rig, or its user, describes it: a folder stands for it.
struct RigMedium {
    /// A `zeb::MediumKind`, or `SdCard`.
    int kind = SdCard;
    QString name;
    /// Made when it is not there.
    QString folder;
    /// In bytes; 0: as much as the folder's disk has.
    qint64 capacity = 0;
    /// That it gets when it has none yet.
    QString password;
    bool isProtected = false;

    static constexpr int SdCard = 0;
};

/// What to simulate: cameras in the order in which the host shows them, Sync Hubs, and the media that are in.
struct Rig {
    QList<RigDevice> devices;
    QList<RigHub> hubs;
    QList<RigMedium> media;
};
