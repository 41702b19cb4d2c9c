#pragma once

#include "FrameMetadata.h"

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

/// What a saved file tells of the frames in it. Pure.
struct FileMetadata {
    /// One JSON object in ASCII, of at most `MostBytes`.
    QByteArray description;
    /// The same member by member, for files that hold texts by their names. A layout has none.
    QList<QPair<QString, QString>> tags;

    /// What the comment of a JPEG file, or an argument of a program, has room for.
    static constexpr int MostBytes = 60000;

    /// What there is no room for is left out, and counted: items of custom information, or cameras.
    static FileMetadata of(const FrameMetadata& frame);
    static FileMetadata ofLayout(const QList<FrameMetadata>& cameras);
};
