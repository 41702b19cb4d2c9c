#include "DocumentGuard.h"
#include "FakeHost.h"

#include <gtest/gtest.h>

namespace {

class Guard : public testing::Test {
protected:
    /// Whether the mutex of document work is free, as another thread would see it.
    bool mutexIsFree() {
        const bool free = host.docMutex.tryLock();
        if (free) host.docMutex.unlock();
        return free;
    }

    Journal journal;
    FakeHost host;
    FakeDoc first{1};
    FakeDoc third{3};
};

TEST_F(Guard, UndoesWhatItDidWhateverTheModeIsByThen) {
    host.docs = {{1, &first}, {3, &third}};
    host.connectedKeys = {1, 2, 3};
    const struct {
        const char* sentence;
        int modeBefore;
        int modeAfter;
        bool restart;
        bool refresh;
        QStringList calls;
    } cases[] = {
        {"live, with a camera that is gone", 0, 0, false, true, {"pauseLive", "refresh 1", "refresh 3", "resumeLive"}},
        {"live, no new images", 0, 0, false, false, {"pauseLive", "resumeLive"}},
        {"live, with a restart",
         0,
         0,
         true,
         false,
         {"beginDocEdit", "beginDocEditNotify", "restartLive", "resumeLive", "endDocEdit", "commitDocEdit"}},
        {"memory", 1, 1, true, true, {"pausePlayer", "resumePlayer"}},
        {"from live to memory", 0, 1, false, false, {"pauseLive", "resumeLive"}},
        {"from memory to live", 1, 0, true, true, {"pausePlayer", "resumePlayer"}},
    };
    for (const auto& row : cases) {
        host.mode = row.modeBefore;
        DocumentGuard guard(host, row.restart, row.refresh);
        EXPECT_FALSE(mutexIsFree());
        host.mode = row.modeAfter;
        guard.release();
        EXPECT_TRUE(mutexIsFree());
        guard.release();
        EXPECT_EQ(journal.take().join(' ').toStdString(), row.calls.join(' ').toStdString()) << row.sentence;
    }
}

TEST_F(Guard, NestsAndLeavesAMutexThatItDidNotGet) {
    {
        const DocumentGuard outer(host);
        { const DocumentGuard inner(host); }
        EXPECT_FALSE(mutexIsFree());
    }
    EXPECT_TRUE(mutexIsFree());
    EXPECT_EQ(journal.take(), QStringList({"pauseLive", "pauseLive", "resumeLive", "resumeLive"}));
}

TEST_F(Guard, FailureLeavesNothingPaused) {
    FakeDoc silent(1, true);
    host.docs = {{1, &silent}, {3, &third}};
    host.connectedKeys = {1, 3};

    DocumentGuard guard(host);
    EXPECT_THROW(guard.release(), std::runtime_error);
    EXPECT_EQ(journal.take(), QStringList({"pauseLive", "refresh 1", "resumeLive"}));
    EXPECT_TRUE(mutexIsFree());

    { const DocumentGuard forgotten(host); }
    EXPECT_EQ(journal.take().last(), "critical: \"camera is silent\"");

    host.failing = "restartLive";
    EXPECT_THROW(DocumentGuard(host, true), std::runtime_error);
    EXPECT_EQ(journal.take(),
              QStringList({"beginDocEdit", "beginDocEditNotify", "restartLive", "endDocEdit", "commitDocEdit"}));
    EXPECT_TRUE(mutexIsFree());
}

}  // namespace
