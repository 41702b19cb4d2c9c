#include "SaveTrack.h"

#include "FramePicture.h"
#include "SaveFormat.h"

#include <algorithm>

void SaveTrack::thin(const FrameSkipRule& skip) {
    if (!isLayout) {
        step = skip.stepAt(sources.front().recording().rate);
        return;
    }
    std::vector<TimedRange> ranges;
    std::transform(sources.begin(), sources.end(), std::back_inserter(ranges),
                   [](const SaveSource& source) { return source.range(); });
    moments = TimeSteps(ranges, skip);
}

int SaveTrack::frames() const {
    return isLayout ? moments.count() : (sources.front().frames() - 1) / step + 1;
}

qint64 SaveTrack::number(int index) const {
    return isLayout ? index : sources.front().frame(index * step).number;
}

qint64 SaveTrack::time(int index) const {
    return isLayout ? moments.time(index) : sources.front().frame(index * step).time;
}

qint64 SaveTrack::indexOf(qint64 number) const {
    return isLayout ? number : (number - this->number(0)) / step;
}

std::optional<int> SaveTrack::shown(int index, int place) const {
    if (!isLayout) {
        return index * step;
    }
    const TimedRange range = sources[std::size_t(place)].range();
    const qint64 frame = moments.frameAt(index, range.rate);
    const qint64 inRange = std::clamp(frame, range.first, range.last);
    return layout.holdsEnds || frame == inRange ? std::optional(int(inRange - range.first)) : std::nullopt;
}

int SaveTrack::triggerIndex() const {
    const TimedRange range = sources.front().range();
    const bool isInRange = !isLayout && range.first <= 0 && range.last >= 0;
    return isInRange ? int(-range.first / step) : -1;
}

QSize SaveTrack::size() const {
    return isLayout ? layout.wholeSize(int(sources.size())) : sources.front().resolution();
}

QSize SaveTrack::tileSize() const {
    return isLayout ? layout.tileSize(int(sources.size())) : size();
}

int SaveTrack::bits() const {
    const auto most = std::max_element(sources.begin(), sources.end(),
                                       [](const auto& one, const auto& two) { return one.bits() < two.bits(); });
    return most->bits();
}

QImage SaveTrack::picture(int index, const QSet<int>& lost) const {
    if (!isLayout) {
        return drawFrame(sources.front().frame(index * step), size());
    }
    std::vector<std::optional<LayoutTile>> tiles(sources.size());
    for (int place = 0; place < int(sources.size()); ++place) {
        if (!lost.contains(place)) {
            const SaveSource& source = sources[std::size_t(place)];
            const std::optional<int> frame = shown(index, place);
            tiles[std::size_t(place)] = {source.name(),
                                         frame ? std::optional(source.frameFromTrigger(*frame)) : std::nullopt};
        }
    }
    return layoutPicture(layout, tiles);
}

FileMetadata SaveTrack::metadata(int index, const QSet<int>& lost) const {
    QList<FrameMetadata> cameras;
    for (int place = 0; place < int(sources.size()); ++place) {
        const std::optional<int> frame = shown(index, place);
        if (frame && !lost.contains(place)) {
            cameras.append(sources[std::size_t(place)].metadata(*frame));
        }
    }
    return isLayout ? FileMetadata::ofLayout(cameras) : FileMetadata::of(cameras.first());
}

FileMetadata SaveTrack::metadataOfAll() const {
    QList<FrameMetadata> cameras;
    for (const SaveSource& source : sources) {
        FrameMetadata metadata = source.metadata(0);
        metadata.last = source.metadata(isLayout ? source.frames() - 1 : (frames() - 1) * step).first;
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
    if (sources.empty()) {
        return {};
    }
    SaveTrack track{name, true, sources};
    track.thin({});
    return {track};
}

int filesIn(const SaveTrack& track, const SaveFormat& format) {
    return format.isOneFile() ? 1 : track.frames() - track.from;
}
