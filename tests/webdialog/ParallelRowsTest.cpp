#include "ParallelRows.h"

#include <gmock/gmock.h>

#include <set>
#include <stdexcept>
#include <thread>

namespace {

using testing::ElementsAre;

/// Each who comes waits until so many have come.
class Meeting {
public:
    explicit Meeting(int size) : m_missing(size) {}
    void come() {
        std::unique_lock lock(m_mutex);
        --m_missing;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_missing <= 0; });
    }
    void waitUntilMissing(int count) {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [&] { return m_missing <= count; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_missing;
};

TEST(ParallelRows, RunAllAtOnceAndKeepWhatEachHasThrown) {
    Meeting all(64);
    ParallelRows rows(64, [&](int row) {
        all.come();
        if (row % 7 == 0) {
            throw std::runtime_error(std::to_string(row));
        }
    });
    while (!rows.waitFor(1000)) {
    }
    EXPECT_TRUE(rows.unfinished().empty());
    for (int row = 0; row < 64; ++row) {
        std::string thrown;
        try {
            if (rows.failureOf(row)) {
                std::rethrow_exception(rows.failureOf(row));
            }
        } catch (const std::exception& failure) {
            thrown = failure.what();
        }
        EXPECT_EQ(thrown, row % 7 == 0 ? std::to_string(row) : "");
    }
}

TEST(ParallelRows, AreTakenInTurnWhereTheyAnswerAtOnceAndElseSideBySide) {
    std::set<std::thread::id> threads;
    {
        const ParallelRows prompt(
            64, [&](int) { threads.insert(std::this_thread::get_id()); }, 64, std::chrono::minutes(1));
    }
    EXPECT_EQ(threads.size(), 1);
    Meeting all(16);
    const ParallelRows held(
        16, [&](int) { all.come(); }, 16, std::chrono::milliseconds(1));
    all.waitUntilMissing(0);
}

TEST(ParallelRows, LeaveOutWhatHasNotBegun) {
    Meeting few(4);
    ParallelRows rows(
        6, [&](int) { few.come(); }, 3);
    few.waitUntilMissing(1);
    EXPECT_THAT(rows.waiting(), ElementsAre(3, 4, 5));
    EXPECT_FALSE(rows.waitFor(0));
    rows.leaveOutWaiting();
    EXPECT_THAT(rows.unfinished(), ElementsAre(0, 1, 2));
    few.come();
    while (!rows.waitFor(1000)) {
    }
    EXPECT_THAT(rows.leftOut(), ElementsAre(3, 4, 5));
}

}  // namespace
