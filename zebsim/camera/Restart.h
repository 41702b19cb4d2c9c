#pragma once

#include <QtGlobal>

#include <mutex>

/// How a device starts anew, as it has to for some presets. It goes when the host disconnects it, and is away for a
/// time. Any thread.
class Restart {
public:
    /// Whoever has marked it expects that the device goes, and wants it back. A preset that is not loaded ends that.
    void setMarked(bool marked);
    /// It is due: the device goes when it is disconnected next.
    void request();
    bool isRequested() const;
    /// The device goes, until `back` by the host's clock; `comesBack` false: it stays away.
    void begin(qint64 back, bool comesBack);
    bool isAway() const;
    /// It was to be back, and is not.
    bool isLost() const;

    enum class End { None, Back, BackAsMarked, StaysAway };
    /// What has come of it by then. An end is told once.
    End endBy(qint64 now);

private:
    enum class State { None, Requested, Away, Lost };

    mutable std::mutex m_mutex;
    State m_state = State::None;
    bool m_marked = false;
    bool m_comesBack = true;
    qint64 m_back = 0;
};
