#include "TablePage.h"
#include "Until.h"

#include <QDialog>
#include <QRegularExpression>
#include <QWebFrame>
#include <QWebView>

namespace {

/// What is open.
const char* Open = R"js(
    return $('.miscfuncs ul:visible').get().map(list => list.closest('.funcs-button').id).join() +
        ' ' + $('.dummy').length + ' ' + wrentabledialog_obj.isSnapshotListShown;
)js";

TEST(PageMenus, CloseByAChoiceOrAClickElsewhere) {
    TestHost test(connected(3));
    TablePage page(test);
    EXPECT_EQ(page.text(Open), " 0 false");
    for (const char* way : {".dummy", "#btn-snapshot a.snapshot-clip"}) {
        page.click("#btn-snapshot .miscfuncs button");
        EXPECT_EQ(page.text(Open), "btn-snapshot 1 true");
        page.tick();
        page.update();
        EXPECT_EQ(page.text(Open), "btn-snapshot 1 true") << "it outlives cycles";
        choose(test, {"1"});
        page.click(way);
        EXPECT_EQ(page.text(Open), " 0 false") << way;
        EXPECT_TRUE(test.camera(1).get(&CameraState::selected)) << "the click met no row";
    }
    page.run("wrentabledialog_obj.appendDummy(); wrentabledialog_obj.appendDummy(); return 0");
    EXPECT_EQ(page.text(Open), " 1 false");
    page.tick();
    EXPECT_EQ(page.text(Open), " 0 false") << "no list is shown";
}

TEST(PageMenus, KnowTheKeys) {
    TestHost test(connected(3));
    TablePage page(test);
    const auto shot = [&page](std::initializer_list<Qt::Key> keys) {
        page.click("#btn-snapshot .miscfuncs button");
        return page.made("^snapShot", [&] {
            for (const Qt::Key key : keys) {
                page.key(key);
            }
            EXPECT_EQ(page.text(Open), " 0 false");
        });
    };
    EXPECT_EQ(shot({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}), QStringList("snapShot 2"));
    EXPECT_EQ(shot({Qt::Key_Home, Qt::Key_Up, Qt::Key_Up, Qt::Key_Enter}), QStringList("snapShot 3"));
    EXPECT_EQ(shot({Qt::Key_Down, Qt::Key_Escape, Qt::Key_Down}), QStringList());
    EXPECT_EQ(page.text("document.activeElement.tagName"), "BUTTON");

    page.click("#recording_partition_span_button");
    page.key(Qt::Key_Escape);
    EXPECT_EQ(page.text(Open), " 0 false") << "the box of partitions";
}

TEST(PageMenus, SaveFilesOrLayout) {
    TestHost test(connected(2));
    test.host.appStatus().enterMode(zeb::MemoryMode);
    TablePage page(test, 5);
    const auto clicked = [&page](const QString& target) {
        return page.made("^save|hideSelectBox", [&] { page.click(target); });
    };
    const auto chosen = [&page, &clicked](const QString& entry) {
        page.run("$('#btn-save li a').addClass('active'); return 0");
        page.click("#btn-save .miscfuncs button");
        EXPECT_EQ(page.text(Open), "btn-save 1 false");
        EXPECT_EQ(page.list("$('#btn-save a.active').get().map(entry => entry.className)"),
                  QStringList("save-layout localize active"));
        const QStringList made = clicked(entry);
        EXPECT_EQ(page.text(Open), " 0 false");
        return made;
    };
    EXPECT_EQ(clicked("button.save-files"), QStringList("save"));
    EXPECT_EQ(chosen("li a.save-layout"), QStringList({"hideSelectBox", "saveLayout"}));
    EXPECT_TRUE(page.until("$('#btn-save a.active').length === 0")) << "a moment later";
    EXPECT_EQ(chosen("li a.save-files"), QStringList({"hideSelectBox", "save"}));
    EXPECT_EQ(page.text("$('button.save-files').text()"), "Save");
    test.host.prefs().setValue("save/livememorymodeSaveStatus", 1);
    page.tick();
    EXPECT_EQ(page.text("$('button.save-files').text()"), "Save layout");
    EXPECT_EQ(page.number("$('button.save-files > span').length"), 1);
    EXPECT_EQ(clicked("button.save-files"), QStringList("saveLayout"));
}

TEST(PageMenus, GoWithTheirButton) {
    TestHost test(connected(3));
    TablePage page(test);
    struct Case {
        zeb::OperatingMode mode;
        const char* menu;
        std::function<void(bool)> happens;
    };
    const auto state = [&test](const char* name) {
        return [&test, name](bool on) { test.host.flags().set(name, on); };
    };
    const auto enters = [&test](zeb::OperatingMode mode, zeb::OperatingMode back) {
        return [&test, mode, back](bool on) { test.host.appStatus().enterMode(on ? mode : back); };
    };
    for (const Case& c : QList<Case>{{zeb::LiveMode, "btn-snapshot", state("IsConflictPartition")},
                                     {zeb::LiveMode, "btn-snapshot", enters(zeb::MemoryMode, zeb::LiveMode)},
                                     {zeb::MemoryMode, "btn-save", state("IsAdjustingImage")},
                                     {zeb::MemoryMode, "btn-save", enters(zeb::LiveMode, zeb::MemoryMode)},
                                     {zeb::MemoryMode, "btn-save", enters(zeb::FileMode, zeb::MemoryMode)}}) {
        page.enter(c.mode);
        page.click(QString("#%1 .miscfuncs button").arg(c.menu));
        EXPECT_EQ(page.text(Open).section(' ', 0, 1), QString("%1 1").arg(c.menu));
        for (const bool on : {true, false}) {
            c.happens(on);
            page.update();
            EXPECT_EQ(page.text(Open), " 0 false") << c.menu << on;
        }
    }

    page.enter(zeb::LiveMode);
    page.click("#btn-snapshot .miscfuncs button");
    // In the moment before the page's next look.
    page.run("zeb4func.disable('#btn-snapshot button', true); return 0");
    EXPECT_EQ(page.made("^snapShot", [&] { page.click("#btn-snapshot a.snapshot-clip"); }), QStringList());
}

TEST(PageMenus, ThePartitionBoxOpensAtItsButton) {
    TestHost test(connected(2));
    choose(test, {"1"});
    TablePage page(test);
    const char* names = "hideSelectBox|showLivePartition";
    const QStringList made = page.made(names, [&] { page.click("#recording_partition_span_button"); });
    const QString spot = page.text(
        "const spot = $('#btn-recording_partition'); const at = spot.offset();"
        "return [at.left, at.top, spot.width(), spot.height()].map(Math.round).join(' ')");
    EXPECT_EQ(made, QStringList({"hideSelectBox", "showLivePartition " + spot}));
    EXPECT_TRUE(page.run("wrentabledialog.isShownSelectBox()").toBool());
    page.click(".dummy");
    EXPECT_FALSE(page.run("wrentabledialog.isShownSelectBox()").toBool());
    EXPECT_EQ(page.text(Open), " 0 false");

    test.host.flags().set("IsConflictPartition", true);
    page.tick();
    const auto clicked = [&] { page.run("document.getElementById('btn-recording_partition').click(); return 0"); };
    EXPECT_EQ(page.made(names, clicked), QStringList()) << "the button is disabled";
}

/// The list of partitions floats over the table; camera 1 is the current one.
class PagePartitions : public testing::Test {
protected:
    PagePartitions() {
        test.camera(1).change(
            {{"partitions", 4}, {"partition", 2}, {"partitionNames", QStringList{"Warm-up", "Shot"}}});
        choose(test, {"1"});
        page.update();
    }

    void open() {
        page.run("wrentabledialog.showLivePartition(30, 400, 120, 24); return 0");
        for (QWidget* child : page.window().findChildren<QWidget*>()) {
            box = child->inherits("GUI_SelectBox") ? child : box;
        }
        EXPECT_TRUE(until([this] { return box->isVisible(); })) << "when its page has loaded";
    }
    QVariant inBox(const QString& script) {
        return box->findChild<QWebView*>()->page()->mainFrame()->evaluateJavaScript(script);
    }
    QVariant rows() { return inBox("document.querySelectorAll('#items a').length"); }

    TestHost test{connected(2)};
    TablePage page{test};
    QWidget* box = nullptr;
};

TEST_F(PagePartitions, StandOverTheirPlaceAndGoWithTheTable) {
    open();
    page.window().setGeometry(260, 140, 1300, 620);
    EXPECT_EQ(box->geometry(), QRect(260 + 30, 140 + 400 - 6 * 24, 120, 6 * 24));
    test.calls();
    page.run("wrentabledialog.hideSelectBox(); return 0");
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(test.calls(), QStringList()) << "the table hides its own box, not the host's";

    open();
    page.window().close();
    EXPECT_TRUE(until([this] { return !page.window().isVisible(); }));
    EXPECT_FALSE(box->isVisible());
    page.open();
    EXPECT_FALSE(box->isVisible()) << "a table that opens again has no list";
    EXPECT_EQ(test.desk.take(), QStringList("Quit WREN?"));
    page.settle();
    choose(test, {"1"});
    open();
}

TEST_F(PagePartitions, ShowAChoiceInTheTableAtTheNextUpdate) {
    const char* name = "wrentabledialog.getCurrentPartition() + wrentabledialog.getCurrentPartitionName()";
    open();
    inBox("items.slotNotifyPartition('3')");
    page.settle();
    EXPECT_EQ(page.text("$('#recording_partition').text()"), "Partition 3");
    EXPECT_EQ(page.text(name), "3Partition 3");
    EXPECT_EQ(rows(), 6);
    test.camera(1).change({{"connected", false}});
    EXPECT_EQ(page.text(name), "0");
    page.update();
    EXPECT_TRUE(until([this] { return rows() == 0; }));
}

TEST_F(PagePartitions, WaitForAQuestionOfTheTableAndTheOtherWayRound) {
    open();
    test.desk.whileStanding = [this] { inBox("items.slotNotifyPartition('3')"); };
    page.run("wrentabledialog.confirm('Sure?')");
    EXPECT_EQ(test.camera(1).get(&CameraState::partition), 2);

    test.host.faults().plant(1, "setPartition", Fault{"no answer"});
    test.desk.whileStanding = [this] { page.run("wrentabledialog.setParamLock(['1'], true); return 0"); };
    inBox("items.slotNotifyPartition('3')");
    EXPECT_EQ(test.desk.take(), QStringList({"Sure?", "Camera 1: no answer"}));
    EXPECT_FALSE(test.camera(1).get(&CameraState::locked));
}

TEST(PagePanels, HandOnWhatIsPressed) {
    TestHost test(connected(2));
    choose(test, {"1"});
    TablePage page(test);
    const auto made = [&page](const std::function<void()>& work) { return page.made("^(record|cancelRecord)$", work); };
    const auto clicked = [&](const QString& target) { return made([&] { page.click(target); }); };
    const auto asked = [&](const QString& target) {
        test.calls();
        page.click(target);
        return test.calls("snapShot|LiveLoop|Testing");
    };
    EXPECT_EQ(asked("#btn-snapshot > button"), QStringList("snapShot 1"));
    const QStringList entries = {"file", "clip", "both", "setting"};
    for (const QString& entry : entries) {
        page.click("#btn-snapshot .miscfuncs button");
        EXPECT_EQ(asked("#btn-snapshot a.snapshot-" + entry),
                  QStringList(QString("snapShot %1").arg(entries.indexOf(entry) + 1)));
    }
    const auto stopsLive = [](const char* arguments) {
        return QStringList({"pauseLive 0", QString("setStopLive %1").arg(arguments), "resumeLive"});
    };
    EXPECT_EQ(asked("#timeline_updateLiveButton"), QStringList()) << "the image moves by itself";
    EXPECT_EQ(asked("#timeline_stopLiveCheckbox"), stopsLive("true 1"));
    EXPECT_EQ(asked("#timeline_updateLiveButton"), QStringList("updateLive"));
    EXPECT_EQ(asked("#timeline_stopLiveCheckbox"), stopsLive("false 1"));
    EXPECT_EQ(asked("#timeline_trigger_test"), QStringList("setTriggerTesting true"));
    EXPECT_EQ(page.text("$('label[for=timeline_trigger_test]').text()"), "Trigger test ON");
    EXPECT_EQ(asked("#timeline_trigger_test"), QStringList("setTriggerTesting false"));

    EXPECT_EQ(clicked("#timeline_rec_cancel"), QStringList()) << "there is nothing to cancel";
    for (const char* state : {"IsReady", "IsRecording"}) {
        test.host.flags().set(state, true);
        page.tick();
        EXPECT_EQ(made([&] { page.press("#timeline_rec_cancel"); }), QStringList("cancelRecord"));
        page.release();
        EXPECT_EQ(clicked("#timeline_rec_exec"), QStringList("record")) << "it brings the recording on";
        EXPECT_FALSE(page.run("$('#timeline_rec_exec').prop('disabled')").toBool()) << "and can be pressed again";
        test.host.flags().set(state, false);
    }
}

}  // namespace
