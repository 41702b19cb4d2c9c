#pragma once

#include "DrawnInformation.h"
#include "FrameSkipRule.h"
#include "SaveFormat.h"
#include "SaveTrack.h"
#include "VideoEncoder.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

/// What is to be saved, and where to.
struct SaveOrders {
    SaveFormat format;
    /// Their folders are made if they are not there.
    std::vector<SaveTrack> tracks;
    /// Paths of files that are there already and may go.
    QSet<QString> mayReplace = {};
    /// Least digits of a frame's number in a file's name.
    int frameDigits = 5;
    VideoEncoder encoder = {};
    /// What can't be saved, a line each for the list of results.
    QStringList absent = {};
    /// Answers why a file of so many bytes can't be written at that path; empty when it can. It is asked before a
    /// picture is written, and of a file with all frames before that takes its name. Any thread.
    std::function<QString(const QString& path, qint64 bytes)> diskFault = [](const QString&, qint64) {
        return QString();
    };
    /// Of the tracks that are added.
    FrameSkipRule skip = {};
    LayoutRule layout = {};
    DrawnInformation drawn = {};
    /// What the name of a small picture beside the files of a track ends in; nothing: there is none.
    std::optional<QString> thumbnail = {};
    /// A file beside them tells what they are; not of a layout.
    bool hasInformation = false;
    /// When the save was asked for.
    QDateTime date = {};

    /// One more track, as `skip` and `layout` say.
    void add(SaveTrack track);
    /// Path of the file that frame `index` of `track` goes into, as "stem_00512.png", or "stem.mp4" for all frames.
    QString fileOf(const SaveTrack& track, int index) const;
    /// Files that are to be written for it, those beside the pictures too.
    int filesOf(const SaveTrack& track) const;
    /// What that frame is saved as; those at the places `lost` of its sources show nothing. Any thread.
    QImage picture(const SaveTrack& track, int index, const QSet<int>& lost = {}) const;
};

/// Why files of a format, as "png" or "mraw", can't be written here at all, in the user's language; empty when they
/// can. Of a video nothing is known before its formats were tried.
QString formatFault(const QString& id);

/// All that the preferences of `family`, as "export/", choose; without tracks. What can't be is as nobody has chosen
/// it.
SaveOrders chosenOrders(const PrefReader& pref, const QString& family);
