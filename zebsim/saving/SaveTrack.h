#pragma once

#include "FileMetadata.h"
#include "LayoutPicture.h"
#include "SaveSource.h"
#include "TimeSteps.h"

#include <QImage>
#include <QSet>

struct SaveFormat;

/// A row of pictures to be saved: the frames of one recording, or of several side by side. Any thread.
struct SaveTrack {
    /// What it is called in lists.
    QString name;
    bool isLayout = false;
    /// Never empty.
    SaveSources sources;
    /// Absolute path of its files, without number and suffix.
    QString stem = {};
    /// Index of the first frame to be saved; those before it stand in files.
    int from = 0;
    /// Of a camera's range, one frame in so many has an index.
    int step = 1;
    /// Of a layout: how it looks, and at which moments.
    LayoutRule layout = {};
    TimeSteps moments = {};
    /// Frames in the one file that stands there; a shorter one does not take its place.
    int least = 0;
    /// It is called, and written, as is chosen for conversions.
    bool isConversion = false;

    /// Whether no frame of the range is left out.
    bool isWhole() const { return !isLayout && step == 1; }
    /// Leaves frames out, as `skip` says.
    void thin(const FrameSkipRule& skip);
    /// All of them, those before `from` too.
    int frames() const;
    /// Number of a frame as an operator sees it. In a layout, where each camera has its own, they count from 0.
    qint64 number(int index) const;
    /// Of a camera's range, the index of the frame at which the trigger came, or of the last before it; -1 when it came
    /// outside.
    int triggerIndex() const;
    /// Its time in microseconds, from where the numbers are counted; of a layout from the trigger.
    qint64 time(int index) const;
    /// The index of a number; any index for a number that none has.
    qint64 indexOf(qint64 number) const;
    /// Which frame of the range of the source at `place` it shows; nothing when it shows none.
    std::optional<int> shown(int index, int place) const;
    QSize size() const;
    /// Of the picture of one camera.
    QSize tileSize() const;
    /// Of a channel; those of the camera that fills most of them.
    int bits() const;
    /// Those at the places `lost` of `sources` show nothing.
    QImage picture(int index, const QSet<int>& lost = {}) const;
    /// Of a file with that picture, and of one with all of them.
    FileMetadata metadata(int index, const QSet<int>& lost = {}) const;
    FileMetadata metadataOfAll() const;
};

/// A track for each source; they have no stem yet.
std::vector<SaveTrack> tracksOfEach(const SaveSources& sources);
/// One track of them all, called `name`; none when there is nothing to save.
std::vector<SaveTrack> tracksOfLayout(const SaveSources& sources, const QString& name);

/// How many files are to be written: one, or one for each frame from the first to be saved on.
int filesIn(const SaveTrack& track, const SaveFormat& format);
