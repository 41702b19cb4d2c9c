#pragma once

#include "StubPlugin.h"

/// A plug-in with a signal whose emitter waits until the GUI thread has served it.
class ShotPlugin : public StubPlugin {
    Q_OBJECT

public:
    ShotPlugin() {
        connect(
            this, &ShotPlugin::signalShot, this, [this](const QString& wanted) { path = wanted; },
            Qt::BlockingQueuedConnection);
    }

    QString path;

Q_SIGNALS:
    void signalShot(const QString& path);
};
