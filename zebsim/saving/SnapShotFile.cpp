#include "SnapShotFile.h"

#include "FileClaims.h"
#include "FileError.h"
#include "PictureSink.h"
#include "SaveNames.h"
#include "TextKey.h"

#include <QDir>

void writeSnapShot(const QString& folder, const QString& camera, const QDateTime& time, const SaveFormat& format,
                   const QImage& image, const FileMetadata& metadata) {
    const QDir target(folder);
    if (!target.mkpath(QStringLiteral("."))) {
        throw FileError(folder, TextKey("there can't be such a folder"));
    }
    FileClaims claims([](const QString& /*file*/) { return Overwrite::SkipCamera; });
    const QString name = fileNameOf(camera) % time.toString(QStringLiteral("'_'yyyyMMdd-HHmmss"));
    PictureSink sink(claims, format, target.filePath(name));
    int number = 1;
    while (!sink.write({image, QStringLiteral("%1").arg(number, 3, 10, QLatin1Char('0')), metadata})) {
        ++number;
    }
}
