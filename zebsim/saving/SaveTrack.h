#pragma once

#include "FileMetadata.h"
#include "SaveSource.h"

#include <QImage>
#include <QSet>

/// A row of pictures to be saved: the frames of one camera, or of several side by side.
struct SaveTrack {
    /// The camera's name, or what the layout is called; and the first part of its files' names.
    QString name;
    QString fileName;
    bool isLayout = false;
    /// Never empty.
    SaveSources sources;

    /// Of the longest range.
    int frames() const;
    /// Number of a frame as an operator sees it. In a layout, where each camera has its own, they count from 0.
    qint64 number(int index) const;
    QSize size() const;
    /// A camera whose range is over keeps its last frame; one of `lost` shows nothing.
    QImage picture(int index, const QSet<DOCKEY>& lost = {}) const;
    /// Of a file with that picture, and of one with all of them.
    FileMetadata metadata(int index, const QSet<DOCKEY>& lost = {}) const;
    FileMetadata metadataOfAll() const;
};

/// A track for each camera.
std::vector<SaveTrack> tracksOfEach(const SaveSources& sources);
/// One track of them all, called `name`; none when there is nothing to save.
std::vector<SaveTrack> tracksOfLayout(const SaveSources& sources, const QString& name);
