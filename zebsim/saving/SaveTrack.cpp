#include "SaveTrack.h"

#include "FramePicture.h"
#include "SaveFormat.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr QSize LargestTile{480, 360};
constexpr int LargestWidth = 3840;
constexpr QColor Ground(24, 26, 30);

int columnsOf(std::size_t count) {
    return int(std::ceil(std::sqrt(double(count))));
}

QSize tileOf(std::size_t count) {
    return fitInto({std::min(LargestTile.width(), LargestWidth / columnsOf(count)), LargestTile.height()}, LargestTile);
}

}  // namespace

int SaveTrack::frames() const {
    const auto longest = std::max_element(sources.begin(), sources.end(),
                                          [](const auto& one, const auto& two) { return one.frames() < two.frames(); });
    return longest->frames();
}

qint64 SaveTrack::number(int index) const {
    return isLayout ? index : sources.front().frame(index).number;
}

QSize SaveTrack::size() const {
    if (!isLayout) {
        return sources.front().resolution();
    }
    const int columns = columnsOf(sources.size());
    const int rows = (int(sources.size()) + columns - 1) / columns;
    const QSize tile = tileOf(sources.size());
    return {tile.width() * columns, tile.height() * rows};
}

QImage SaveTrack::picture(int index, const QSet<int>& lost) const {
    if (!isLayout) {
        return drawFrame(sources.front().frame(index), sources.front().resolution());
    }
    QImage picture(size(), QImage::Format_RGB32);
    picture.fill(Ground);
    QPainter painter(&picture);
    const QSize tile = tileOf(sources.size());
    const int columns = columnsOf(sources.size());
    for (int place = 0; place < int(sources.size()); ++place) {
        const SaveSource& source = sources[std::size_t(place)];
        if (lost.contains(place)) {
            continue;
        }
        const QSize fitting = fitInto(tile, source.resolution());
        const QPoint corner(tile.width() * (place % columns), tile.height() * (place / columns));
        const QPoint border((tile.width() - fitting.width()) / 2, (tile.height() - fitting.height()) / 2);
        painter.drawImage(corner + border, drawFrame(source.frame(std::min(index, source.frames() - 1)), fitting));
    }
    return picture;
}

FileMetadata SaveTrack::metadata(int index, const QSet<int>& lost) const {
    if (!isLayout) {
        return FileMetadata::of(sources.front().metadata(index));
    }
    QList<FrameMetadata> cameras;
    for (int place = 0; place < int(sources.size()); ++place) {
        if (!lost.contains(place)) {
            const SaveSource& source = sources[std::size_t(place)];
            cameras.append(source.metadata(std::min(index, source.frames() - 1)));
        }
    }
    return FileMetadata::ofLayout(cameras);
}

FileMetadata SaveTrack::metadataOfAll() const {
    QList<FrameMetadata> cameras;
    for (const SaveSource& source : sources) {
        FrameMetadata metadata = source.metadata(0);
        metadata.last = source.metadata(source.frames() - 1).first;
        cameras.append(metadata);
    }
    return isLayout ? FileMetadata::ofLayout(cameras) : FileMetadata::of(cameras.first());
}

std::vector<SaveTrack> tracksOfEach(const SaveSources& sources) {
    std::vector<SaveTrack> tracks;
    for (const SaveSource& source : sources) {
        tracks.push_back({source.name(), false, {source}});
    }
    return tracks;
}

std::vector<SaveTrack> tracksOfLayout(const SaveSources& sources, const QString& name) {
    return sources.empty() ? std::vector<SaveTrack>() : std::vector<SaveTrack>{{name, true, sources}};
}

int filesIn(const SaveTrack& track, const SaveFormat& format) {
    return format.isOneFile() ? 1 : track.frames() - track.from;
}
