#pragma once

#include <QVariantMap>

/// Throws `StateError` for the first of these settings, as plain data by their names, that no camera of any model can
/// have. Those of image plug-ins are objects with numbers, and no more is known of them here: which plug-ins there are
/// and what their numbers may be, `checkPluginValues` of the images looks at.
void checkLimits(const QVariantMap& settings);
