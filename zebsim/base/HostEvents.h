#pragma once

#include "ZebTypes.h"

#include <QObject>

/// What happens in the host, for its own windows and the scenario runner. GUI thread.
class HostEvents : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

Q_SIGNALS:
    /// The cameras were replaced by another rig; all documents are new.
    void camerasReplaced();
    /// A zeb::OperatingMode.
    void modeChanged(int mode);
    /// Something in the host wants a loaded plug-in to be opened.
    void pluginWanted(const QString& name);
    void pluginShown(const QString& name);
    void pluginClosed(const QString& name);
    /// A recording that was triggered has ended, with or without images.
    void shootEnded();
    /// A recording has ended that left something in a camera's memory.
    void somethingRecorded();
    /// One new live image of each camera is wanted while they stand.
    void liveImageWanted();
    /// A storage medium was put in, pulled out, opened, closed or erased.
    void mediaChanged();
    /// One whose recordings were documents was pulled out. A zeb::MediumKind, or an SD card.
    void openMediumGone(int kind, const QString& name);
    /// An update cycle has reached all plug-ins and bridges.
    void updateFinished();
};
