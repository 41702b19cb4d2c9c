#include "UTL_Integration.h"

#include <QDir>
#include <QFile>

bool UTL_Integration::exists(const QString& folder, const QString& file) const {
    return !folder.isEmpty() && QFile::exists(QDir(folder).filePath(file));
}
