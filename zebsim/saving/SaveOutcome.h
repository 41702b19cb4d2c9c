#pragma once

#include <QString>

/// What became of a track, or of a camera in a layout.
struct SaveOutcome {
    /// The last: there was nothing to be had when the save began, and `reason` says all.
    enum End { Saved, CameraLost, FileFailed, Cancelled, Absent };

    /// Of the orders; -1 for what was absent, and for a camera that was lost from a layout.
    int track = -1;
    QString name;
    End end = Saved;
    /// Frames that stand in complete files, and that were to be saved, from the track's first one on.
    int saved = 0;
    int frames = 0;
    /// Number of the last one saved, as an operator sees it.
    qint64 lastNumber = 0;
    /// The file, or the folder, that can't be written, and why; of a camera, why it was lost.
    QString file;
    QString reason;
};
