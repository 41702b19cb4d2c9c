#pragma once

#include "CustomInfoDialect.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVariantMap>

/// What a file of custom information holds. An item has the keys that the file has, and always a `name`.
struct CustomInfoReading {
    QList<QVariantMap> items;
    /// Why there are none, and where the reader stood; empty when there are.
    QString reason;
    qint64 line = 0;
    qint64 column = 0;
};

/// Reads the bytes of a file, within `CustomInfoBounds`. Never throws, opens no other file and no address. Any thread.
CustomInfoReading readCustomInfo(const QByteArray& bytes, const CustomInfoDialect& dialect);
