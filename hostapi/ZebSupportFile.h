#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// What goes into a support file: contents by file name. Plain data, so that a worker can write it.
struct ZebSupportFile {
    QMap<QString, QByteArray> files;
};
