#pragma once

#include "ZebTypes.h"

#include <QList>
#include <QString>

class CameraBank;
class DOC_Interface;
class QWidget;
class StatusFlags;

/// The questions about the host that take more than a look at its flags. GUI thread.
class HostStates {
public:
    /// Both must outlive the object.
    HostStates(const StatusFlags& flags, const CameraBank& cameras) : m_flags(flags), m_cameras(cameras) {}

    /// As `ZebHost` has them. `window` is the main one; null for none.
    bool isModalDialogOpening() const;
    bool isZebActive(const QWidget* window) const;
    QWidget* fullScreenWidget(QWidget* window) const;
    QList<int> syncCapableCameraTypes() const;
    /// `doc` may be null.
    bool isCapable(const QString& capability, const DOC_Interface* doc) const;

private:
    const StatusFlags& m_flags;
    const CameraBank& m_cameras;
};
