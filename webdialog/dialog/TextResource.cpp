#include "TextResource.h"

#include <QFile>
#include <QIODevice>

std::optional<QString> readTextResource(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return std::nullopt;
    }
    return QString::fromUtf8(file.readAll());
}
