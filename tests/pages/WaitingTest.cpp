#include "TablePage.h"

#include <QDialog>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWebView>

#include <functional>
#include <utility>

namespace {

/// The table with ticks that come as fast as they can, and counts of what reaches the page.
class PageWaiting : public testing::Test {
protected:
    PageWaiting() {
        connectCameras(test, 1, 4);
        page.run(R"js(
            window.seen = { ticks: 0, updates: 0 };
            wrentabledialog.autoUpdate.connect(() => { seen.ticks += 1; });
            wrentabledialog.update.connect(() => { seen.updates += 1; });
        )js");
        test.host.prefs().setValue(QStringLiteral("wren/table/interval"), 1);
        page.run("wrentabledialog.onOpen()");
    }

    int seen(const char* what) { return page.number(QStringLiteral("seen.%1").arg(QLatin1String(what))); }
    /// Runs `work` while the next box stands, and nothing while later ones do.
    void onFirstBox(const std::function<void()>& work) {
        test.desk.whileStanding = [this, work] {
            if (!std::exchange(m_boxSeen, true)) {
                work();
            }
        };
    }
    bool comesATick() {
        page.run("seen.ticks = 0");
        return page.until("seen.ticks > 0");
    }
    /// Lets a timer as fast as the table's run for a while.
    static void letTimePass() {
        int rounds = 0;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&rounds] { ++rounds; });
        timer.start(1);
        ASSERT_TRUE(QTest::qWaitFor([&rounds] { return rounds > 20; }));
    }

    TestHost test{standardRig(4)};
    TablePage page{test, 1};

private:
    bool m_boxSeen = false;
};

TEST_F(PageWaiting, ticksUpdatesModesAndAClosePassAQuestion) {
    const QPointer<QWebView> view = page.window().findChild<QWebView*>();
    ASSERT_TRUE(comesATick());
    int ticksUnderTheBox = -1;
    onFirstBox([&] {
        page.run("seen.ticks = 0; seen.updates = 0");
        page.update();
        EXPECT_GE(seen("updates"), 1) << "the page follows the host";
        test.host.appStatus().enterMode(zeb::MemoryMode);
        page.settle();
        EXPECT_EQ(page.number("$('#tabs').tabs('option', 'active')"), 5);
        EXPECT_EQ(page.number("probe.drawn().length"), 4) << "queries are answered";
        page.run("wrentabledialog.connect(['1'], false)");
        EXPECT_TRUE(test.camera(1).get(&CameraState::connected)) << "nothing is changed behind the question";
        page.window().close();
        letTimePass();
        EXPECT_TRUE(page.window().isVisible());
        EXPECT_TRUE(view);
        ticksUnderTheBox = seen("ticks");
    });
    page.run("wrentabledialog.confirm('Sure?')");
    EXPECT_EQ(ticksUnderTheBox, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !page.window().isVisible(); })) << "the close comes afterwards";
    EXPECT_EQ(test.desk.texts(), (QStringList{"Sure?", "Quit WREN?"}));
    test.desk.shown.clear();

    page.open();
    test.host.appStatus().enterMode(zeb::LiveMode);
    page.settle();
    EXPECT_TRUE(comesATick());
    EXPECT_EQ(page.number("$('#tabs').tabs('option', 'active')"), 1);
}

}  // namespace
