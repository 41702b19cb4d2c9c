#pragma once

#include <QMap>
#include <QMetaMethod>
#include <QVariant>

/// Calls a slot as a page does. `values` are its arguments, by their type; one without a value is empty.
void callSlot(QObject& object, const QMetaMethod& method, const QMap<int, QVariant>& values = {});

/// The slots of a class itself, or of it and its bases up to `QObject`.
QList<QMetaMethod> slotsOf(const QMetaObject& type, bool withBases = false);
