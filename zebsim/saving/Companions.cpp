#include "Companions.h"

#include "FileError.h"
#include "FileWriter.h"
#include "FramePicture.h"
#include "FrameSink.h"
#include "InformationFile.h"
#include "SaveOrders.h"
#include "TextKey.h"

namespace {

constexpr QSize LargestThumbnail(320, 240);

/// Of the frame at the trigger, or the last saved one before it; of the first where the trigger is not in the range.
QByteArray thumbnail(const SaveTrack& track, int saved) {
    const int index = track.triggerIndex();
    const int shown = index >= 0 && index < saved ? index : 0;
    const QImage picture = track.picture(shown);
    const QSize size = fitInto(LargestThumbnail, picture.size()).boundedTo(picture.size());
    return saveFormat(QStringLiteral("jpeg"))
        .encoded(picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), track.metadata(shown));
}

void write(const SaveOrders& orders, const QString& path, const QByteArray& bytes) {
    if (bytes.isEmpty()) {
        throw FileError(path, TextKey("the picture has no such form"));
    }
    meetDiskFault(orders, path);
    writeFile(path, bytes, overOf(orders, path));
}

}  // namespace

QString thumbnailOf(const SaveOrders& orders, const SaveTrack& track) {
    return orders.thumbnail ? QString(track.stem % *orders.thumbnail % QStringLiteral(".jpg")) : QString();
}

QString informationFileOf(const SaveOrders& orders, const SaveTrack& track) {
    return orders.hasInformation && !track.isLayout ? informationPath(track.stem) : QString();
}

QStringList companionsOf(const SaveOrders& orders, const SaveTrack& track) {
    QStringList paths{thumbnailOf(orders, track), informationFileOf(orders, track)};
    paths.removeAll({});
    return paths;
}

void writeCompanions(const SaveOrders& orders, const SaveTrack& track, int saved) {
    const QString small = thumbnailOf(orders, track);
    const QString information = informationFileOf(orders, track);
    if (saved > 0 && !small.isEmpty()) {
        write(orders, small, thumbnail(track, saved));
    }
    if (saved > 0 && !information.isEmpty()) {
        write(orders, information, informationOf(orders, track, saved).toJson());
    }
}
