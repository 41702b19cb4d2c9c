#pragma once

#include <QObject>

#include <functional>

/// Update cycles: queued, coalesced, and put off while deterred. GUI thread.
class UpdateCycle : public QObject {
public:
    /// `work` is one cycle.
    explicit UpdateCycle(std::function<void()> work);

    /// One cycle comes from the event loop after any number of these.
    void request();
    /// Calls nest. What was asked for while deterred is owed: one cycle after the last end.
    void deter(bool deter);
    /// A cycle was asked for and has not run yet.
    bool isDeterred() const { return m_deterred > 0; }
    bool isPending() const { return m_queued || m_owed; }
    /// A cycle comes from the event loop; one that is owed does not come before the last end of deterrence.
    bool isQueued() const { return m_queued; }

private:
    void queue();
    void run();

    std::function<void()> m_work;
    int m_deterred = 0;
    bool m_queued = false;
    bool m_owed = false;
};
