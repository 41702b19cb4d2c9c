#pragma once

#include "SYNC_PARAMS.h"
#include "ZebTypes.h"

#include <QThread>

class ZebHost;

/// The one call of a synchronisation, which may take long. It can't be cancelled. Made and started on the GUI thread;
/// wait for its end before it is destroyed.
class RUN_SyncingThread : public QThread {
    Q_OBJECT

public:
    /// `docs` in the order of the synchronisation. Nothing of this is owned.
    RUN_SyncingThread(ZebHost* host, const DocList& docs, DOC_Interface* master, const SYNC_PARAMS& params);

Q_SIGNALS:
    /// The call has ended; `status` false when it threw.
    void complete(bool status);

protected:
    void run() override;

private:
    bool synchronise();

    ZebHost* const m_host;
    const DocList m_docs;
    DOC_Interface* const m_master;
    const SYNC_PARAMS m_params;
};
