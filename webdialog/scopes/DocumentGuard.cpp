#include "DocumentGuard.h"

#include "DOC_Activity.h"
#include "DOC_Interface.h"
#include "LogFailure.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebLiveLoop.h"
#include "ZebPlayer.h"

#include <exception>
#include <utility>

DocumentGuard::DocumentGuard(ZebHost& host, bool restart, bool refreshDocs)
    : m_host(host), m_restart(restart), m_refreshDocs(refreshDocs) {
    try {
        acquire();
    } catch (...) {
        logFailure([this] { release(); });
        throw;
    }
}

DocumentGuard::~DocumentGuard() {
    logFailure([this] { release(); });
}

void DocumentGuard::acquire() {
    m_locked = m_host.docManager().getDocMutex()->tryLock(1);
    if (!m_host.isLiveMode()) {
        m_host.player().pausePlayer();
        m_paused = Paused::Player;
        return;
    }
    if (m_restart) {
        m_host.docManager().beginDocEdit();
        m_editing = true;
        m_host.docManager().beginDocEditNotify();
        m_host.liveLoop().restartLive(0, 1, 1);
    } else {
        m_host.liveLoop().pauseLive(0);
    }
    m_paused = Paused::Live;
}

void DocumentGuard::release() {
    std::exception_ptr failure;
    const auto undo = [&failure](auto&& step) {
        try {
            step();
        } catch (...) {
            if (!failure) {
                failure = std::current_exception();
            }
        }
    };

    const Paused paused = std::exchange(m_paused, Paused::Nothing);
    if (paused == Paused::Player) {
        undo([this] { m_host.player().resumePlayer(); });
    }
    if (paused == Paused::Live) {
        if (m_refreshDocs && m_host.liveLoop().isLivePaused()) {
            undo([this] { refreshConnectedDocs(); });
        }
        undo([this] { m_host.liveLoop().resumeLive(); });
    }
    if (std::exchange(m_editing, false)) {
        undo([this] { m_host.docManager().endDocEdit(); });
        undo([this] { m_host.docManager().commitDocEdit(); });
    }
    if (std::exchange(m_locked, false)) {
        m_host.docManager().getDocMutex()->unlock();
    }

    if (failure) {
        std::rethrow_exception(failure);
    }
}

void DocumentGuard::refreshConnectedDocs() {
    ZebDocManager& docs = m_host.docManager();
    for (DOCKEY key : docs.getConnectedDocKeys(0)) {
        if (DOC_Interface* doc = docs.getDoc(key, 1)) {
            doc->activity().refresh(true);
        }
    }
}
