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

/// The file of these items, which the reader takes back as they are, but for names that files of jobs have. XML has no
/// form for most control characters, halves of letters, U+FFFE and U+FFFF: they are left out. Items that would pass a
/// bound of the reader are refused. Any thread.
CustomInfoWriting writeCustomInfo(const QList<QVariantMap>& items, const QString& version,
                                  const CustomInfoDialect& dialect);
