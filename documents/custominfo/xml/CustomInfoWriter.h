#pragma once

#include "CustomInfoDialect.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVariantMap>

/// A file of custom information, or why there is none.
struct CustomInfoWriting {
    QByteArray bytes;
    QString reason;
};

/// The file of these items, which the reader takes back as they are. XML has no form for most control characters and
/// for halves of letters: they are left out. Items that would pass a bound of the reader are refused. Any thread.
CustomInfoWriting writeCustomInfo(const QList<QVariantMap>& items, const QString& version,
                                  const CustomInfoDialect& dialect);
