#pragma once

#include "SaveJob.h"

#include <QSet>
#include <QString>
#include <QStringList>

class NameSource;
class NamedDocument;
class QDateTime;
class TargetDisk;

/// Where the files of a track go, part by part, as its names were composed.
struct TrackTarget {
    /// The chosen folder, and the two that are made in it; either can be empty.
    QString root;
    QString group;
    QString sub;
    /// What the files' names begin with.
    QString name;

    /// That of the first partition of `document`, as `composeTargets` composes it. Throws as it does.
    static TrackTarget of(NameSource& source, zeb::FileType type, const NamedDocument& document, const QDateTime& time);

    /// Ends in '/'.
    QString folder() const;
    QString stem() const { return folder() + name; }
};

/// What an operator is to know of a save before the first byte.
struct PlanEntry {
    enum Kind {
        // To be known.
        FolderIsMade,
        FolderHoldsFiles,
        // To be agreed to.
        Exists,
        LeftOut,
        NoSpace,
        // Nothing is written as long as one of these stands.
        WrittenTwice,
        Forbidden,
        PathTooLong,
        NoFolder,
        ReadOnly,
        NoFile,
        NoName,
        NoFormat,
        /// It is of a recording that is open, or that the same save reads.
        IsOpen
    };
    Kind kind = Exists;
    /// Cameras that it is about; empty: all of them.
    QString camera;
    /// The file or folder; of `Forbidden` the part of it.
    QString path;
    /// Files, or bytes that are needed.
    qint64 count = 0;
    /// What else is to be told: a field, a reason, another camera.
    QString detail = {};
    /// Bytes that there is room for.
    qint64 available = 0;

    bool isBlocking() const { return kind >= WrittenTwice; }
    bool isQuestion() const { return kind >= Exists && !isBlocking(); }
};

/// What stands against the names of `camera`: a root that is no path, an empty name, a part that is no name.
QList<PlanEntry> faultsOf(const TrackTarget& target, const QString& camera);

/// Every file of a save, and what stands against it.
struct SavePlan {
    /// With the stems of their files, and the files that may be replaced.
    SaveOrders orders;
    QList<PlanEntry> entries;
    /// Expected, of each track.
    std::vector<qint64> bytes;
    qint64 files = 0;
    qint64 allBytes = 0;

    bool isPossible() const;
};

/// The plan for `orders`, whose tracks have these targets, one each. `known` is what is known already: cameras that are
/// left out, names that can't be made. Draws one picture.
SavePlan planOf(SaveOrders orders, const std::vector<TrackTarget>& targets, TargetDisk& disk,
                QList<PlanEntry> known = {});
