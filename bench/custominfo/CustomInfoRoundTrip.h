#pragma once

#include "CustomInfoDialect.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVariantMap>

/// What is wrong with how the bytes of a file are read, and what comes of them is written; empty for nothing.
QString faultOfReading(const QByteArray& bytes);

/// What is wrong with how items are written, and read again; empty for nothing. No name may be one that files of jobs
/// have.
QString faultOfWriting(const QList<QVariantMap>& items, const CustomInfoDialect& dialect);
