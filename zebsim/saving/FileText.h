#pragma once

#include "CameraFrame.h"
#include "CustomInfo.h"

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

#include <optional>

struct CameraState;
struct Recording;

/// When a frame was taken.
struct FrameMoment {
    /// As an operator sees it.
    qint64 number = 0;
    /// Microseconds from the trigger; nothing in a live image.
    std::optional<qint64> time;
};

/// What a saved file tells of its frame, or of the frames in it.
struct FrameFacts {
    QString camera;
    /// Frames a second, n of 1/n second.
    unsigned int rate = 0;
    int shutter = 0;
    FrameMoment first;
    /// Of a video only.
    std::optional<FrameMoment> last;
    CustomInfo info;

    static FrameFacts live(const CameraState& state, const CameraFrame& frame);
    static FrameFacts recorded(const Recording& recording, const CameraFrame& frame);
};

/// The text in a saved file. Pure.
struct FileText {
    /// One JSON object in ASCII, of at most `MostBytes`.
    QByteArray description;
    /// The same member by member, for files that hold texts by their names.
    QList<QPair<QString, QString>> parts;

    /// What the comment of a JPEG file, or an argument of a program, has room for.
    static constexpr int MostBytes = 60000;

    /// What there is no room for is left out, and counted: items of custom information, or cameras.
    static FileText of(const FrameFacts& facts);
    static FileText ofLayout(const QList<FrameFacts>& cameras);
};
