#pragma once

#include <QObject>
#include <QScopedPointer>
#include <QTimer>

class ZebHost;

/// The timers of an open table: the ticks by which the page follows the cameras, and the short wait that makes one
/// update of a run of selections. Without `renew`, and after `remove`, there are none and nothing happens.
///
/// No tick comes while a bridge call runs. `start` and `stop` are the page's and are not counted: inside a call
/// they only say what its end does.
class UpdateTimers : public QObject {
    Q_OBJECT

public:
    explicit UpdateTimers(ZebHost& host) : m_host(host) {}

    /// New timers in the place of earlier ones; they do not run yet. `interval` in milliseconds.
    void renew(int interval);
    void remove();

    bool isTicking() const { return m_update && m_update->isActive(); }

    /// The outermost bridge call begins, and ends.
    void pause();
    void resume();
    void start();
    void stop();

    /// Waits for `ms` from now, whatever was waited for before; then `selected`.
    void waitForSelection(int ms);

Q_SIGNALS:
    void tick();
    void selected();

private:
    using Timer = QScopedPointer<QTimer, QScopedPointerDeleteLater>;

    void startNow();
    void stopNow();

    ZebHost& m_host;
    Timer m_update;
    Timer m_selection;
    bool m_paused = false;
    bool m_startAtResume = true;
};
