#pragma once

#include <QString>
#include <QVariant>

#include <functional>

/// Reads a preference; an invalid value stands for 0, false or the empty text.
using PrefReader = std::function<QVariant(const QString& key)>;
