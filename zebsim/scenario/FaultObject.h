#pragma once

#include "camera/FaultPlan.h"

#include <QVariantMap>

/// The fault that an object of a script describes: `throws`, `delay`, `gone`. Throws `ScenarioError` for another
/// member.
Fault faultOf(const QVariantMap& members);
