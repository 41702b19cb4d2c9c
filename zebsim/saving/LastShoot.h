#pragma once

#include "ZebTypes.h"

#include <QList>
#include <QObject>
#include <QString>

struct Recording;
class CameraBank;
class HostEvents;

/// A camera whose last recording can't be fetched.
struct AbsentCamera {
    enum Why { Gone, Disconnected };

    QString name;
    Why why = Gone;
};

/// What the cameras kept of the last recording that was triggered, wherever they are by now. GUI thread.
class LastShoot : public QObject {
    Q_OBJECT

public:
    /// `cameras` must outlive the object. It knows of recordings that end while it lives.
    LastShoot(const CameraBank& cameras, const HostEvents& events);

    /// Whether `recording` was in a camera before the last one that this object knows of.
    bool isEarlier(const Recording& recording) const;
    /// The cameras that hold something of it that nobody has saved, but are not connected any more, in the order of
    /// their keys.
    QList<AbsentCamera> absent() const;

private:
    void begin();

    const CameraBank& m_cameras;
    /// Serial numbers of recordings: the last one before the shoot, and the last one known.
    quint64 m_before = 0;
    quint64 m_last = 0;
};
