#pragma once

#include "GUI_ProgressDialog.h"

class RUN_SyncingThread;
class ZebHost;

/// The busy bar over the host's main window while the cameras are synchronised. The user can't close it. GUI thread.
class GUI_SyncProgress : public GUI_ProgressDialog {
    Q_OBJECT

public:
    explicit GUI_SyncProgress(ZebHost* host);

    /// Starts the work and runs an event loop until it has ended, thread and all. Whether it went well.
    bool run(RUN_SyncingThread& thread);

public Q_SLOTS:
    void complete(bool result);

private:
    bool m_result = true;
};
