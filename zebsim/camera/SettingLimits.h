#pragma once

#include <QVariantMap>

/// Throws `StateError` for the first of these settings, as plain data by their names, that no camera of any model can
/// have. Those of image plug-ins are objects with numbers, and no more is known of them here.
void checkLimits(const QVariantMap& settings);
