#include "UpdateCycle.h"

UpdateCycle::UpdateCycle(std::function<void()> work) : m_work(std::move(work)) {}

void UpdateCycle::request() {
    if (m_deterred > 0) {
        m_owed = true;
    } else {
        queue();
    }
}

void UpdateCycle::deter(bool deter) {
    if (deter) {
        ++m_deterred;
        return;
    }
    m_deterred = qMax(0, m_deterred - 1);
    if (m_deterred == 0 && m_owed) {
        queue();
    }
}

void UpdateCycle::queue() {
    m_owed = false;
    if (!m_queued) {
        m_queued = true;
        QMetaObject::invokeMethod(
            this, [this] { run(); }, Qt::QueuedConnection);
    }
}

void UpdateCycle::run() {
    m_queued = false;
    if (m_deterred > 0) {
        m_owed = true;
    } else {
        m_work();
    }
}
