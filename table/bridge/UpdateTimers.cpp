#include "UpdateTimers.h"

#include "ZebHost.h"
#include "ZebSaver.h"

namespace {
/// In milliseconds.
constexpr int UsualInterval = 500;
}  // namespace

void UpdateTimers::renew(int interval) {
    // A timer of 0 would leave no time for anything else.
    interval = interval > 0 ? interval : UsualInterval;
    remove();
    m_update.reset(new QTimer);
    m_update->setInterval(interval);
    connect(m_update.data(), &QTimer::timeout, this, &UpdateTimers::tick);
    m_selection.reset(new QTimer);
    m_selection->setInterval(interval);
    m_selection->setSingleShot(true);
    connect(m_selection.data(), &QTimer::timeout, this, &UpdateTimers::selected);
}

void UpdateTimers::remove() {
    for (Timer* timer : {&m_update, &m_selection}) {
        if (*timer) {
            (*timer)->stop();
            timer->reset();
        }
    }
}

void UpdateTimers::pause() {
    m_paused = true;
    m_startAtResume = true;
    stopNow();
}

void UpdateTimers::resume() {
    m_paused = false;
    if (m_startAtResume) {
        startNow();
    }
}

void UpdateTimers::start() {
    m_startAtResume = true;
    if (!m_paused) {
        startNow();
    }
}

void UpdateTimers::stop() {
    m_startAtResume = false;
    if (!m_paused) {
        stopNow();
    }
}

void UpdateTimers::waitForSelection(int ms) {
    if (m_selection) {
        m_selection->start(ms);
    }
}

void UpdateTimers::startNow() {
    if (m_update && !m_update->isActive() && !m_host.isFileMode() && !m_host.saver().isSaving()) {
        m_update->start();
    }
}

void UpdateTimers::stopNow() {
    if (m_update && !m_host.isFileMode()) {
        m_update->stop();
    }
}
