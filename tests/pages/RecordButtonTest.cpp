#include "TablePage.h"

namespace {

/// A page over two cameras that are free to record.
class PageRecordButton : public testing::Test {
protected:
    PageRecordButton() : test(connected(2)) {
        test.host.prefs().setValue("wren/display/lock", false);
        page = std::make_unique<TablePage>(test);
    }

    /// What the recorder and the page hear of `work`.
    QStringList orders(const std::function<void()>& work) {
        test.calls();
        work();
        page->settle();
        return test.calls("ZebRecorder");
    }
    /// How often a click, before which `prepare` runs, would reach the back end.
    int presses(const QString& prepare = "") {
        page->run("probe.callsBegin(); wrentabledialog.record = () => probe.made.push(['record']);" + prepare +
                  "; return 0");
        page->click(button);
        return page->number("probe.callsEnd().filter(call => call[0] === 'record').length");
    }
    /// Whether the button shows that it took no press, of which the log tells, with what it showed then. Once only.
    QString refused() {
        return page->text(
            "const refusal = probe.made.find(call => call[1] && call[1].includes('not taken'));"
            "const shows = $('[refused]').removeAttr('refused').get().map(one => one.id).join();"
            "return refusal || shows ? shows + (refusal ? ': ' + refusal[1][5] : '') : ''");
    }
    QString face() { return page->text("$('#timeline_rec_exec').text()"); }
    bool isDisabled() { return page->run("$('#timeline_rec_exec').prop('disabled')").toBool(); }

    TestHost test;
    std::unique_ptr<TablePage> page;
    const QString button = "#timeline_rec_exec";
};

TEST_F(PageRecordButton, TakesADoubleClickForOnePress) {
    page->run("probe.callsBegin(); return 0");
    EXPECT_EQ(orders([&] { page->doubleClick(button); }), QStringList("startRecReady"));
    page->run("probe.callsEnd(); return 0");
    EXPECT_EQ(refused(), "timeline_rec_exec: Ready");
    EXPECT_EQ(orders([&] { page->doubleClick("#timeline_rec_cancel"); }), QStringList("cancelRecording false"));
}

TEST_F(PageRecordButton, MeansWhatItShows) {
    struct Case {
        const char* shown;
        const char* now;
        const char* face;
    };
    // The page hears of the status from nobody but itself.
    page->run("wrentabledialog_obj.update = () => undefined; return 0");
    for (const Case& c : {Case{"IsRecording", "", "Record"}, Case{"IsRecording", "IsReady", "Ready"},
                          Case{"IsReady", "IsRecording", "Recording..."}, Case{"", "IsReady", "Ready"}}) {
        SCOPED_TRACE(std::string(c.shown) + " is shown, " + c.now);
        const auto becomes = [&](const QString& state) {
            for (const char* flag : {"IsReady", "IsRecording"}) {
                test.host.flags().set(flag, state == flag);
            }
        };
        becomes(c.shown);
        page->tick();
        becomes(c.now);
        const QString before = face();
        EXPECT_EQ(presses(), 0);
        EXPECT_EQ(refused(), "timeline_rec_exec: " + before);
        EXPECT_EQ(face(), c.face);
        EXPECT_EQ(presses(), 1) << "what is seen now is meant";
        EXPECT_EQ(refused(), "");
    }
}

TEST_F(PageRecordButton, TakesNoPressThatMayHaveWaitedForItsCall) {
    test.host.flags().set("IsReady", true);
    page->tick();
    page->run(
        "probe.callsBegin(); probe.time = 0; Date.now = () => probe.time;"
        "wrentabledialog.record = () => { probe.made.push(['record']); probe.time += 3000; };"
        "const button = document.getElementById('timeline_rec_exec');"
        "wrentabledialog_obj.pressRecord(button); wrentabledialog_obj.pressRecord(button); return 0");
    EXPECT_EQ(page->number("probe.callsEnd().filter(call => call[0] === 'record').length"), 1);
    EXPECT_EQ(refused(), "timeline_rec_exec: Ready");
    EXPECT_TRUE(page->until("!wrentabledialog_obj.isPressed"));
    EXPECT_EQ(presses(), 1);
}

TEST_F(PageRecordButton, StaysAsItIsWithoutAStatus) {
    test.host.flags().set("IsRecording", true);
    page->tick();
    for (const char* reply : {"{}", "null", ""}) {
        const QString answer = QString("wrentabledialog.getRecStatus = () => '%1'").arg(reply);
        EXPECT_EQ(presses(answer), 1) << "the back end knows what can be stopped";
        page->run("probe.callsBegin(); " + answer + "; wrentabledialog_obj.autoUpdate(); probe.callsEnd(); return 0");
        EXPECT_EQ(face(), "Recording...") << reply;
    }
}

TEST_F(PageRecordButton, IsOutOfReachWhileItsCallAsks) {
    test.host.prefs().setValue("wren/display/lock", true);
    test.desk.whileStanding = [this] {
        page->update();
        page->tick();
        EXPECT_TRUE(isDisabled()) << "under the question";
        EXPECT_EQ(presses(), 0);
        EXPECT_EQ(refused(), "timeline_rec_exec: Record");
    };
    page->press(button);
    EXPECT_EQ(test.desk.take(), QStringList("Lock all connected cameras."));
    page->release();
    page->tick();
    EXPECT_FALSE(isDisabled()) << "the next cycle frees it";
}

}  // namespace
