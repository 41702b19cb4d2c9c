#pragma once

#include "ZebTypes.h"

#include <QMap>
#include <QSet>
#include <QStringList>

class Camera;
class CameraBank;
class Translator;

/// What goes wrong with a recording, in the user's language: told at once, and at a save once more what is lost of the
/// last one. GUI thread.
class RecordingLosses {
public:
    /// Both must outlive the object.
    RecordingLosses(const CameraBank& cameras, const Translator& translator)
        : m_cameras(cameras), m_translator(translator) {}

    /// Why a camera that takes part does so no longer.
    enum Why { Disappeared, Disconnected, Left };

    /// The camera has nothing of the recording: it has failed, for a `reason` that names it; ...
    void fail(const Camera& camera, const QString& reason);
    /// ... it was not ready at the trigger, or was spared, for it holds images that nobody has saved. `waits`: it was
    /// armed for the recording; ...
    void leaveBehind(const Camera& camera, bool waits);
    /// ... it takes no part any more, before its trigger or after it; ...
    void miss(const Camera& camera, Why why, bool isTriggered);
    /// ... no frame of its record area was recorded.
    void missArea(const Camera& camera);

    /// Nothing is lost: what was wrong with a camera, empty for one that has done it; ...
    void tellReason(const QString& reason);
    void tellOwnTrigger(const Camera& camera);
    /// ... a recording that has ended for a `reason` which names the camera; ...
    void tellEarlyEnd(const QString& reason, unsigned int frames);
    void tellOtherPartition(const Camera& camera, PARTITIONNUMBER partition);
    /// ... cameras that have vanished since the last asking, unless `miss` has told that. One that nobody works with
    /// and that holds nothing is not missed.
    void tellVanished();

    /// A line for each of what was told since the last asking.
    QStringList takeNews();
    /// The camera takes part: what became of it before is no loss.
    void takeBack(const Camera& camera);
    /// The recording is over; what there is to save is still that of the one before when none was triggered.
    void end(bool isTriggered);
    /// The cameras are no more.
    void clear();
    /// A line for each camera that has nothing of the last recording that was triggered, in the order of their keys.
    const QStringList& lost() const { return m_lost; }

private:
    void lose(const Camera& camera, const QString& line);
    void tellGone(const Camera& camera);
    /// `text` in the user's language, with the camera and `value` in its places.
    QString line(const QString& text, const Camera& camera) const;
    QString line(const QString& text, const Camera& camera, unsigned int value) const;

    const CameraBank& m_cameras;
    const Translator& m_translator;
    QStringList m_news;
    /// Of the recording under way, by the camera's key.
    QMap<DOCKEY, QString> m_losses;
    QStringList m_lost;
    /// Cameras that are gone, which has been told.
    QSet<DOCKEY> m_vanished;
};
