#include "DocumentGuard.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

namespace {

class Guard : public testing::Test, public TestHost {
protected:
    Guard() : TestHost(connected(3)) { course.take(); }

    /// Whether the mutex of document work is free, as another thread would see it.
    bool mutexIsFree() {
        QMutex* mutex = host.docManager().getDocMutex();
        const bool free = mutex->tryLock();
        if (free) {
            mutex->unlock();
        }
        return free;
    }

    Course course;
};

const QStringList Refreshed = {"refresh 1 true", "refresh 2 true", "refresh 3 true"};
const QStringList Restarted = {"beginDocEdit", "beginDocEditNotify", "restartLive 0 1 1"};
const QStringList Committed = {"endDocEdit", "commitDocEdit"};

TEST_F(Guard, UndoesWhatItDidWhateverTheModeIsByThen) {
    const struct {
        const char* sentence;
        int modeBefore;
        int modeAfter;
        bool restart;
        bool refresh;
        QStringList calls;
    } cases[] = {
        {"live", 0, 0, false, true, QStringList("pauseLive 0") + Refreshed + QStringList("resumeLive")},
        {"live, no new images", 0, 0, false, false, {"pauseLive 0", "resumeLive"}},
        {"live, with a restart", 0, 0, true, false, Restarted + QStringList{"resumeLive"} + Committed},
        {"memory", 1, 1, true, true, {"pausePlayer", "resumePlayer"}},
        {"from live to memory", 0, 1, false, false, {"pauseLive 0", "resumeLive"}},
        {"from memory to live", 1, 0, true, true, {"pausePlayer", "resumePlayer"}},
    };
    for (const auto& row : cases) {
        host.appStatus().enterMode(row.modeBefore);
        DocumentGuard guard(host, row.restart, row.refresh);
        EXPECT_FALSE(mutexIsFree());
        host.appStatus().enterMode(row.modeAfter);
        guard.release();
        EXPECT_TRUE(mutexIsFree());
        guard.release();
        EXPECT_EQ(course.take(), row.calls) << row.sentence;
    }
}

TEST_F(Guard, NestsAndLeavesAMutexThatItDidNotGet) {
    {
        const DocumentGuard outer(host, false, false);
        { const DocumentGuard inner(host, false, false); }
        EXPECT_FALSE(mutexIsFree());
    }
    EXPECT_TRUE(mutexIsFree());
    EXPECT_EQ(course.take(), QStringList({"pauseLive 0", "pauseLive 0", "resumeLive", "resumeLive"}));
}

TEST_F(Guard, FailureLeavesNothingPaused) {
    host.faults().plant(1, "refresh", {"no answer"});
    DocumentGuard guard(host);
    EXPECT_THROW(guard.release(), std::runtime_error);
    EXPECT_EQ(course.take(), QStringList({"pauseLive 0", "refresh 1 true", "resumeLive"}));
    EXPECT_TRUE(mutexIsFree());

    { const DocumentGuard forgotten(host); }
    EXPECT_EQ(course.take().last(), "critical: \"Camera 1: no answer\"");

    fail("restartLive");
    EXPECT_THROW(DocumentGuard(host, true), std::runtime_error);
    EXPECT_EQ(course.take(), Restarted + Committed);
    EXPECT_TRUE(mutexIsFree());
}

}  // namespace
