#include "Companions.h"

#include "FileError.h"
#include "FileWriter.h"
#include "FramePicture.h"
#include "FrameSink.h"
#include "InformationFile.h"
#include "SaveOrders.h"
#include "TextKey.h"

#include <exception>

namespace {

constexpr QSize LargestThumbnail(320, 240);

/// Of the frame at the trigger, or the last saved one before it; of the first where the trigger is not in the range.
QByteArray thumbnail(const SaveTrack& track, int saved) {
    const int index = track.triggerIndex();
    const int shown = index >= 0 && index < saved ? index : 0;
    const QImage picture = track.picture(shown);
    const QSize size = fitInto(LargestThumbnail, picture.size()).boundedTo(picture.size()).expandedTo({1, 1});
    return saveFormat(QStringLiteral("jpeg"))
        .encoded(picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), track.metadata(shown));
}

void write(const SaveOrders& orders, const QString& path, const QByteArray& bytes) {
    if (bytes.isEmpty()) {
        throw FileError(path, TextKey("the picture has no such form"));
    }
    meetDiskFault(orders, path, bytes.size());
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
    if (saved == 0) {
        return;
    }
    // One that can't be written does not keep the other from standing.
    std::exception_ptr failure;
    const auto attempt = [&](const QString& path, auto bytes) {
        try {
            if (!path.isEmpty()) {
                write(orders, path, bytes());
            }
        } catch (const FileError&) {
            failure = failure ? failure : std::current_exception();
        }
    };
    attempt(thumbnailOf(orders, track), [&] { return thumbnail(track, saved); });
    attempt(informationFileOf(orders, track), [&] { return informationOf(orders, track, saved).toJson(); });
    if (failure) {
        std::rethrow_exception(failure);
    }
}
