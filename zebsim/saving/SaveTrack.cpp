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
    return (longest->frames() - 1) / step + 1;
}

qint64 SaveTrack::number(int index) const {
    return isLayout ? index : sources.front().frame(shown(index, 0)).number;
}

qint64 SaveTrack::indexOf(qint64 number) const {
    return isLayout ? number : (number - this->number(0)) / step;
}

int SaveTrack::shown(int index, int place) const {
    return isLayout ? std::min(index, sources[std::size_t(place)].frames() - 1) : index * step;
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

int SaveTrack::bits() const {
    const auto most = std::max_element(sources.begin(), sources.end(),
                                       [](const auto& one, const auto& two) { return one.bits() < two.bits(); });
    return most->bits();
}

QImage SaveTrack::picture(int index, const QSet<int>& lost) const {
    if (!isLayout) {
        return drawFrame(sources.front().frame(shown(index, 0)), sources.front().resolution());
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
        painter.drawImage(corner + border, drawFrame(source.frame(shown(index, place)), fitting));
    }
    return picture;
}

FileMetadata SaveTrack::metadata(int index, const QSet<int>& lost) const {
    if (!isLayout) {
        return FileMetadata::of(sources.front().metadata(shown(index, 0)));
    }
    QList<FrameMetadata> cameras;
    for (int place = 0; place < int(sources.size()); ++place) {
        if (!lost.contains(place)) {
            cameras.append(sources[std::size_t(place)].metadata(shown(index, place)));
        }
    }
    return FileMetadata::ofLayout(cameras);
}

FileMetadata SaveTrack::metadataOfAll() const {
    QList<FrameMetadata> cameras;
    for (int place = 0; place < int(sources.size()); ++place) {
        const SaveSource& source = sources[std::size_t(place)];
        FrameMetadata metadata = source.metadata(shown(0, place));
        metadata.last = source.metadata(shown(frames() - 1, place)).first;
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
