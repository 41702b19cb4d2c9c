#pragma once

#include "SaveFormat.h"
#include "SaveTrack.h"
#include "VideoEncoder.h"

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class SavePipeline;

/// What is to be saved, and where to.
struct SaveOrders {
    SaveFormat format;
    /// Their folders are made if they are not there.
    std::vector<SaveTrack> tracks;
    /// Paths of files that are there already and may go.
    QSet<QString> mayReplace = {};
    /// Least digits of a frame's number in a file's name.
    int digits = 5;
    VideoEncoder encoder = {};
    /// What can't be saved, a line each for the list of results.
    QStringList absent = {};
    /// Answers why the next file can't be written; empty when it can. Any thread.
    std::function<QString()> diskFault = [] { return QString(); };
};

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

/// Saves on threads of its own: cameras are read side by side, and pictures made on all cores. GUI thread.
///
/// A camera that fails, or that never answers, does not stop the others. When it is destroyed before its end, it stops
/// within a frame, and only complete files stay.
class SaveJob : public QObject {
    Q_OBJECT

public:
    /// `cameras` must outlive the job.
    SaveJob(const CameraBank& cameras, SaveOrders orders);
    ~SaveJob() override;

    void start();
    bool isRunning() const { return m_pipeline != nullptr; }
    /// What is not complete by now ends within a frame; a video that is not complete goes.
    void cancel();

    const SaveOrders& orders() const { return m_orders; }
    struct State {
        /// Of each track the frames done so far: they stand in files, or the one file is to have them.
        std::vector<int> saved;
    };
    State state() const;
    /// Once it has finished, what was absent, and then in the order of the tracks. The files are on the disk by then.
    const QList<SaveOutcome>& outcomes() const { return m_outcomes; }

Q_SIGNALS:
    /// There may be something new to tell; not once a frame.
    void progressed();
    /// Everything has its outcome.
    void finished();

private:
    void finish();

    const CameraBank& m_cameras;
    const SaveOrders m_orders;
    QTimer m_timer;
    std::unique_ptr<SavePipeline> m_pipeline;
    State m_last;
    QList<SaveOutcome> m_outcomes;
};
