#pragma once

#include "Rig.h"

#include <QStringList>

/// Reads a rig file: a path, or the name of a rig that ships (as "eight-mixed"). Throws `JsonError`.
Rig readRig(const QString& pathOrName);

/// `count` cameras of the model "standard", found and not connected, named "Camera 1" and so on.
Rig standardRig(int count);

/// Names of the rigs that ship.
QStringList shippedRigs();
