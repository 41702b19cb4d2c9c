#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

/// What the host's preferences are until somebody changes them: the one table.
const QHash<QString, QVariant>& factoryValues();
