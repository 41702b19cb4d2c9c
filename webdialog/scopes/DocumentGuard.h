#pragma once

#include <QtGlobal>

class ZebHost;

/// Pauses what reads documents, the live loop or the player, while documents are changed. GUI thread.
///
/// It remembers what it did and undoes that, whatever the mode is by then. Guards nest. The mutex of document
/// work is held if it can be had within 1 ms; without it the work goes on all the same.
class DocumentGuard {
public:
    /// `restart`: the change restarts the live loop. `refreshDocs`: every connected document takes a new image at
    /// the end. Throws what the host throws; nothing is left paused then.
    explicit DocumentGuard(ZebHost& host, bool restart = false, bool refreshDocs = true);
    /// Releases if `release` was not called; a failure goes to the log.
    ~DocumentGuard();
    Q_DISABLE_COPY(DocumentGuard)

    /// Ends the guard. Everything is undone, then the first failure of it is thrown.
    void release();

private:
    enum class Paused { Nothing, Player, Live };

    void acquire();
    void refreshConnectedDocs();

    ZebHost& m_host;
    const bool m_restart;
    const bool m_refreshDocs;
    bool m_locked = false;
    bool m_editing = false;
    Paused m_paused = Paused::Nothing;
};
