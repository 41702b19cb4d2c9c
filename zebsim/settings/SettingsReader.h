#pragma once

#include "HeadSettings.h"

#include <QByteArray>
#include <QList>

/// Reads a file of camera settings, whole. Throws `JsonError`, whose text names the file, the line and the member, for
/// one that is no such file, for a later version of the form, and for anything in it that no camera could have. Any
/// thread.
QList<HeadSettings> readSettings(const QString& path);

/// The same of a text that stands in a file of that name.
QList<HeadSettings> readSettingsText(const QString& file, const QByteArray& text);

/// Settings of a head as they stand in a file, with all that is absent from what stands for it, as in an item of the
/// custom information. Throws `StateError` for what no camera could have. Any thread.
QVariantMap checkSettings(const QVariantMap& members);
