#pragma once

#include "FileClaims.h"
#include "SaveFormat.h"
#include "SaveTrack.h"
#include "VideoEncoder.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <optional>

class FrameSink;

/// What is to be saved, and where to.
struct SaveOrders {
    /// Made if it is not there.
    QString folder;
    SaveFormat format;
    std::vector<SaveTrack> tracks;
    /// Asks about a file that is there already.
    std::function<Overwrite(const QString& file)> ask;
    VideoEncoder encoder = {};
    /// What can't be saved, a line each for the list of results.
    QStringList absent = {};
};

/// Why a save can't begin.
struct SaveRefusal {
    /// Bytes; -1 when there can't be such a folder.
    qint64 needed = -1;
    qint64 available = 0;
};

/// What became of a camera, or of a layout.
struct SaveOutcome {
    /// The last: there was nothing to be had when the save began, and `reason` says all.
    enum End { Saved, CameraLost, FileFailed, Skipped, Cancelled, Absent };

    QString name;
    End end = Saved;
    /// Frames that stand in complete files, and that were to be saved.
    int saved = 0;
    int frames = 0;
    /// Number of the last one saved, as an operator sees it.
    qint64 lastNumber = 0;
    /// The file that can't be written, and why; of a camera, why it was lost.
    QString file;
    QString reason;
};

/// Saves frame by frame, one in each turn of the event loop, so that windows live on. GUI thread.
///
/// A camera that fails does not stop the others. When it is destroyed before its end, only complete files stay.
class SaveJob : public QObject {
    Q_OBJECT

public:
    /// `cameras` must outlive the job. `freeSpace` answers the bytes that a folder has room for.
    SaveJob(const CameraBank& cameras, SaveOrders orders,
            std::function<qint64(const QString& folder)> freeSpace = freeSpaceOf);
    ~SaveJob() override;

    /// Begins, unless there is no folder or no space for all that is to come; then no file was made.
    std::optional<SaveRefusal> start();
    bool isRunning() const { return m_track < m_orders.tracks.size(); }
    /// At the next turn all ends; a video that is not complete goes.
    void cancel() { m_cancelled = true; }

    const SaveOrders& orders() const { return m_orders; }
    /// The track at work and the frame of it that comes next. Only while it runs.
    const SaveTrack& track() const { return m_orders.tracks[m_track]; }
    std::size_t trackNumber() const { return m_track; }
    int frame() const { return m_outcome.saved; }
    /// Of what has ended so far.
    const QList<SaveOutcome>& outcomes() const { return m_outcomes; }

    static qint64 freeSpaceOf(const QString& folder);

Q_SIGNALS:
    /// There is something new to tell.
    void progressed();
    /// Everything has its outcome.
    void finished();

private:
    qint64 bytesNeeded() const;
    void turn();
    /// False while the sink is busy.
    bool work();
    void beginTrack();
    void saveFrame();
    void readCameras();
    void cameraLost(const SaveSource& source, const QString& reason);
    /// The user keeps a file that stands in the way.
    void endKept();
    void endTrack(SaveOutcome::End end);

    const CameraBank& m_cameras;
    const SaveOrders m_orders;
    const std::function<qint64(const QString&)> m_freeSpace;
    FileClaims m_claims;
    QTimer m_timer;
    QList<SaveOutcome> m_outcomes;
    bool m_cancelled = false;
    /// Of the track at work.
    std::size_t m_track = 0;
    std::unique_ptr<FrameSink> m_sink;
    SaveOutcome m_outcome;
    QSet<DOCKEY> m_lost;
    bool m_closed = false;
};
