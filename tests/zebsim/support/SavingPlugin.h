#pragma once

#include "StubPlugin.h"

/// A plug-in that can be told to save, and when it may ask again.
class SavingPlugin : public StubPlugin {
    Q_OBJECT

Q_SIGNALS:
    void signalSaveFile();
    void signalSaveLayout();
    void signalStartAutoUpdate();
};
