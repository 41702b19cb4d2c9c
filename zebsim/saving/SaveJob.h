#pragma once

#include "SaveOrders.h"
#include "SaveOutcome.h"

#include <QList>
#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

class CameraBank;
class SavePipeline;

/// Saves on threads of its own: cameras are read side by side, and pictures made on all cores. GUI thread.
///
/// A camera that fails or never answers, and a video or disk that takes no more, do not stop the other tracks. When it
/// is destroyed before its end, it stops within a frame, and only complete files stay. A call to the disk can't be cut
/// short: when the disk does not answer, it is waited for.
class SaveJob : public QObject {
    Q_OBJECT

public:
    /// `cameras` must outlive the job.
    SaveJob(const CameraBank& cameras, SaveOrders orders);
    ~SaveJob() override;

    void start();
    bool isRunning() const { return m_pipeline != nullptr; }
    /// What is not complete by now ends within a frame; a video that is not complete goes. Then the disk is waited for
    /// as at any end: whose recording is told as saved may be erased.
    void cancel();

    const SaveOrders& orders() const { return m_orders; }
    /// Of each track the frames done so far: they stand in files, or the one file is to have them.
    std::vector<int> done() const;
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
    std::vector<int> m_last;
    QList<SaveOutcome> m_outcomes;
};
