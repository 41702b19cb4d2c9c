#pragma once

#include "MessageDesk.h"
#include "SimHost.h"
#include "SteppedClock.h"

#include <QTemporaryDir>

/// The stand-in host with connected cameras and without a journal; `initHostPages` comes before. GUI thread.
class BenchHost {
public:
    /// `cameras` are found, and as many others wait for a search.
    explicit BenchHost(int cameras);

    SimHost& host() { return m_host; }

    /// Every `step`-th camera gets another value wherever a row of the live control shows one, and of these cameras one
    /// in ten another lock; low light, which steers a row as a lock does, stays off. `run` makes other
    /// names than the last ones.
    void change(int step, int run);
    /// One camera answers another text, which no row shows.
    void changeHidden();
    /// The cameras that wait take the place of the others; each row shows other values than before, as by `change(1)`.
    void showOthers(int run);

private:
    /// Accepts every box.
    class QuietDesk : public MessageDesk {
    public:
        Answer show(const Message&) override { return {}; }
    };

    const QTemporaryDir m_folder;
    SteppedClock m_clock;
    QuietDesk m_desk;
    SimHost m_host;
};
