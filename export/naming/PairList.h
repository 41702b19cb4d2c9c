#pragma once

#include <QList>
#include <QPair>
#include <QString>

#include <optional>

/// Pairs as one text has them, "key|value?key|value"; what is no pair is passed over. Pure.
QList<QPair<QString, QString>> readPairs(const QString& list);

/// What stands under `key` first; nothing when it is not there.
std::optional<QString> valueOf(const QList<QPair<QString, QString>>& pairs, const QString& key);
