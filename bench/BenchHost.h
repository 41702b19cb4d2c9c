#pragma once

#include "MessageDesk.h"
#include "SimHost.h"
#include "SteppedClock.h"

#include <QTemporaryDir>

/// The stand-in host with connected cameras and without a journal; `initHostPages` comes before. GUI thread.
class BenchHost {
public:
    /// `cameras` are there, and as many others are gone.
    explicit BenchHost(int cameras);

    SimHost& host() { return m_host; }

    /// Values of every `step`-th camera that a row shows; `run` makes them differ from those of the last run.
    void change(int step, int run);
    /// Something that changes the text of the answer, but nothing on the screen.
    void changeHidden(int run);
    /// The cameras that are there are gone, and the others take their place, at an odd `run`; back again at an even
    /// one.
    void showOthers(int run);

private:
    /// Accepts every box.
    class QuietDesk : public MessageDesk {
    public:
        Answer show(const Message&) override { return {}; }
    };

    const int m_cameras;
    const QTemporaryDir m_folder;
    SteppedClock m_clock;
    QuietDesk m_desk;
    SimHost m_host;
};
