#pragma once

#include "CameraModel.h"
#include "HeadSettings.h"

#include <QList>
#include <QStringList>

#include <memory>

/// A camera as a load of settings finds it.
struct PlanCamera {
    DOCKEY key = zeb::NoDocKey;
    /// As users tell it from others.
    QString label;
    /// Of its device; which head it is, from 1.
    QString address;
    int head = 1;
    std::shared_ptr<const CameraModel> model;
    CameraState state;
    /// It has vanished; this is what was known of it last.
    bool isGone = false;
};

/// What is to become of one setting of a camera, as plain data.
struct SettingPlan {
    /// Why it does not become what the file asks for: the model does not offer it; no exposure lasts longer than a
    /// frame; all heads of the device share it, and the file has them differ, or one of them is left as it is.
    enum Why { AsAsked, NotOffered, LongerThanFrame, HeadsDiffer, OtherHeadIsLeft };

    QString name;
    QVariant from;
    /// Nothing where the file does not ask: it follows from another setting.
    QVariant asked;
    /// As `from` where it stays.
    QVariant to;
    Why why = AsAsked;

    bool isChange() const { return to != from; }
};

/// What is to become of one camera.
struct CameraPlan {
    /// Why all of it is left as it is.
    enum Left { Taken, NotInFile, Gone, NotConnected, Locked, Armed, Recording };

    PlanCamera camera;
    Left left = Taken;
    /// Those that change, and those that can't become what the file asks for.
    QList<SettingPlan> settings;
    /// How many are as the file has them already; the names of those that it does not have.
    int equal = 0;
    QStringList notInFile;

    /// What the camera has when all has gone well, of the settings that the file asks for or that follow from them.
    QVariantMap expected;

    QVariantMap changes() const;
};

/// What a load of settings does, decided before any camera is touched.
struct LoadPlan {
    /// Those of the file, and those that are connected, in the order of the cameras.
    QList<CameraPlan> cameras;
    /// Of the file, which are not there: "192.168.0.11" or, for a head after the first, "192.168.0.11-2".
    QStringList absent;

    /// How many settings change, and of how many cameras.
    int changes() const;
    int changingCameras() const;
    int equal() const;
    /// Something that the file asks for does not come about.
    bool isOdd() const;
};

/// `Taken`, or why a camera in that state is left alone.
CameraPlan::Left whyLeft(const CameraState& state);

LoadPlan planLoad(const QList<HeadSettings>& file, const QList<PlanCamera>& cameras);
