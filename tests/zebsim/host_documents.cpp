#include "DOC_Interface.h"
#include "support/TestHost.h"

#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

class Documents : public testing::Test {
protected:
    std::size_t alive() { return test.host.docManager().handedOut(); }
    /// Runs an event loop and each of these in a turn of its own.
    static void inTurns(const std::vector<std::function<void()>>& turns) {
        QEventLoop loop;
        std::size_t next = 0;
        const std::function<void()> step = [&] {
            if (next == turns.size()) {
                return loop.quit();
            }
            turns[next++]();
            QTimer::singleShot(0, &loop, step);
        };
        QTimer::singleShot(0, &loop, step);
        loop.exec();
    }

    TestHost test{standardRig(3)};
};

TEST_F(Documents, LiveForOneTurnOfTheirEventLoop) {
    inTurns({[&] {
                 const DocList docs = test.docs({1, 2, 3});
                 EXPECT_EQ(test.doc(1), docs.first()) << "one document for each camera";
                 inTurns({[&] {
                              EXPECT_EQ(alive(), 0u) << "a loop inside has documents of its own";
                              EXPECT_NE(test.doc(1), docs.first());
                              test.host.info(QStringLiteral("a box inside"), nullptr);
                          },
                          [&] { EXPECT_EQ(alive(), 0u) << "for its own turns"; }});
                 EXPECT_EQ(alive(), 3u) << "the turn outside goes on";
                 EXPECT_EQ(docs.last()->getKey(), 3u);
             },
             [&] { EXPECT_EQ(alive(), 0u); }});
}

TEST_F(Documents, DoNotOutliveABoxOfTheHost) {
    inTurns({[&] {
        test.docs({1, 2});
        test.desk.whileStanding = [&] { EXPECT_EQ(alive(), 0u); };
        test.host.info(QStringLiteral("box"), nullptr);
        EXPECT_EQ(test.desk.shown.size(), 1);
    }});
}

}  // namespace
