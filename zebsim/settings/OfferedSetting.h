#pragma once

#include "CameraModel.h"

/// What a camera of that model and in that state makes of a setting, as plain data, that it is asked for: the same, the
/// part of it that it can have, or what it has.
QVariant offeredSetting(const QString& name, const QVariant& asked, const CameraState& state, const CameraModel& model);
