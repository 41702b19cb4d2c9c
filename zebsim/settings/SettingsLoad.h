#pragma once

#include "LoadPlan.h"

class Camera;

/// What has become of a camera that a load was to change.
struct LoadAnswer {
    /// Settings that it has refused, by name, with what it said.
    struct Refusal {
        QStringList settings;
        QString reason;
    };

    /// Not `Taken`: it was armed, locked or disconnected meanwhile, and nothing was changed.
    CameraPlan::Left left = CameraPlan::Taken;
    QList<Refusal> refusals;
    /// What it told afterwards, as plain data; without settings when it did not answer, with what it said instead.
    QVariantMap settings;
    QString whyUnread;
};

/// Makes the changes of a plan on the camera, in an order in which it takes them. One that it refuses does not keep the
/// others back. Any thread.
LoadAnswer loadSettings(Camera& camera, const CameraPlan& plan);

/// Asks the camera what it has now, when all heads of its device have got theirs. Any thread.
void readBack(Camera& camera, LoadAnswer& answer);
