#include "KeyInput.h"
#include "TablePage.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <QWebView>

#include <gmock/gmock.h>

// The frame numbers of the memory tab, typed and stepped.

namespace {

const char* const Start = "select_start_frameno";
const char* const End = "select_end_frameno";
const char* const Offset = "trigger_offset";

QString box(const char* word, const char* key) {
    return QString("#wren_spinner_%1%2").arg(word, key);
}

/// A table of many cameras, three of which have recorded something.
class PageNumbers : public testing::Test {
protected:
    PageNumbers() {
        test.host.appStatus().enterMode(zeb::MemoryMode);
        connectCameras(test, 1, 3);
        record(1, {100, 1099}, 600, {200, 900});
        record(2, {0, 49}, 0, {10, 40});
        record(3, {0, 999}, 500, {0, 999});
        page.update();
    }

    void record(DOCKEY key, const QPoint& whole, int trigger, const QPoint& kept) {
        const auto list = [](const QPoint& range) { return QVariantList{range.x(), range.y()}; };
        test.camera(key).change({{"recorded", true},
                                 {"selected", true},
                                 {"recordedRange", list(whole)},
                                 {"recordedTrigger", trigger},
                                 {"selectedRange", list(kept)}});
    }

    /// The calls of the bridge that `work` and the update after it make.
    QStringList sent(const std::function<void()>& work) { return page.made("^set", work); }
    /// How a box shows that what stands in it is not the camera's number.
    QString mark(const QString& number) {
        return page.text(
            QString("(document.querySelector('%1').className.match(/wren-\\w+/g) || []).join()").arg(number));
    }
    QString shown(const QString& number) { return page.text(QString("$('%1').val()").arg(number)); }
    /// What a camera keeps, as "first to last".
    QString kept(DOCKEY key) {
        const QPoint range = test.camera(key).get(&CameraState::selectedRange);
        return QString("%1 to %2").arg(range.x()).arg(range.y());
    }
    /// Presses the mouse on the upper or lower arrow of a box that may be plain.
    void pressArrow(const QString& number, bool up) { page.pressAt(number, 0.93, up ? 0.25 : 0.75); }
    /// The calls that a click on an arrow makes.
    QStringList stepped(const QString& number, bool up) {
        return sent([&] {
            pressArrow(number, up);
            page.release();
        });
    }
    /// Replaces what stands in a box.
    void type(const QString& number, const QString& text) {
        page.click(number);
        page.run(QString("$('%1')[0].select(); return 0").arg(number));
        page.type(text);
    }
    void vanish(DOCKEY key) {
        test.host.faults().plant(key, "*", {{}, 0, true});
        page.update();
    }
    /// Another window is the active one for a moment.
    void leaveWindow() {
        QDialog other(&page.window());
        QTimer::singleShot(0, &other, [&other] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
            other.accept();
        });
        other.exec();
        page.window().activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
    }
    /// From here on `repeats` counts the arrows that are about to go on.
    void watchRepeats() {
        page.run(
            "probe.timers = new Set();"
            "const set = window.setTimeout, clear = window.clearTimeout;"
            "window.setTimeout = function (work, ms) {"
            "    const id = set.apply(window, arguments);"
            "    if (ms === 500) { probe.timers.add(id); }"
            "    return id; };"
            "window.clearTimeout = function (id) { probe.timers.delete(id); clear(id); }; return 0");
    }
    int repeats() { return page.number("probe.timers.size"); }
    int widgets() { return page.number("$('.ui-spinner').length"); }

    TestHost test{standardRig(4)};
    TablePage page{test, 5};
};

TEST_F(PageNumbers, GoOutWhenTheyAreStepped) {
    const QString start = box(Start, "1");
    EXPECT_EQ(widgets(), 0);
    EXPECT_EQ(sent([&] { page.click(start); }), QStringList());
    EXPECT_EQ(widgets(), 1) << "touched";
    EXPECT_EQ(sent([&] { page.key(Qt::Key_Up); }), QStringList("setSelectStartFrameNo 1 -399"));
    EXPECT_EQ(sent([&] { page.key(Qt::Key_PageDown); }), QStringList("setSelectStartFrameNo 1 -409"))
        << "the box is the same after the update";
    EXPECT_EQ(kept(1), "191 to 900");
    EXPECT_EQ(shown(start), "-409");

    const QString offset = box(Offset, "2");
    EXPECT_EQ(stepped(offset, true), QStringList("setTriggerOffset 2 1"))
        << "the first press on a plain box is one on its arrow already";
    EXPECT_EQ(test.camera(2).get(&CameraState::triggerOffset), 1);
    EXPECT_EQ(stepped(offset, false), QStringList("setTriggerOffset 2 0"));
    EXPECT_FALSE(test.camera(2).get(&CameraState::triggerOffsetEnabled));
    EXPECT_EQ(sent([&] { page.key(Qt::Key_Down); }), QStringList()) << "at its limit";
    page.click(box(Offset, "1"));
    EXPECT_EQ(sent([&] { page.key(Qt::Key_Up); }), QStringList("setTriggerOffset 1 100"))
        << "its limits are frames of the recording, not offsets";
    EXPECT_EQ(widgets(), 1);
    EXPECT_EQ(page.list("probe.selected()"), QStringList({"1", "2", "3"})) << "none of this chose a row";
    page.click("#wren-memoryInfo-list tr[recid=\"3\"] .wren_label_edit_camera_name");
    EXPECT_EQ(widgets(), 0) << "the keyboard went elsewhere";
}

TEST_F(PageNumbers, StartAndEndCannotCross) {
    record(1, {100, 1099}, 600, {600, 601});
    page.update();
    page.click(box(Start, "1"));
    EXPECT_EQ(sent([&] {
                  for (int i = 0; i < 3; ++i) {
                      page.key(Qt::Key_Up);
                  }
              }),
              QStringList("setSelectStartFrameNo 1 1"));
    page.click(box(End, "1"));
    EXPECT_EQ(sent([&] { page.key(Qt::Key_Down); }), QStringList());
    page.key(Qt::Key_Up);
    EXPECT_EQ(kept(1), "601 to 602");
    page.click(box(Start, "1"));
    test.camera(1).change({{"selectedRange", QVariantList{601, 800}}});
    EXPECT_EQ(page.tick(), QStringList({"-1/selectEndFrameNo", "1/selectEndFrameNo", "1/selectStartFrameNo"}).mid(1));
    EXPECT_EQ(sent([&] { page.key(Qt::Key_PageUp); }), QStringList("setSelectStartFrameNo 1 11"))
        << "a tick moved the limit";
}

TEST_F(PageNumbers, GoOutWhenTheirTextIsFinished) {
    struct Case {
        const char* word;
        QString text;
        QStringList calls;
        QString answer;  ///< that the camera's row shows after the next cycle
    };
    for (const Case& c : QList<Case>{
             {Start, "-350\n", {"setSelectStartFrameNo 1 -350"}, "-350"},
             {Start, "-349\t", {"setSelectStartFrameNo 1 -349"}, "-349"},
             {Start, "1,000\n", {"setSelectStartFrameNo 1 1000"}, "300"},
             {Start, "4294967295\n", {"setSelectStartFrameNo 1 2147483647"}, "300"},
             {End, "-800\n", {"setSelectEndFrameNo 1 -800"}, "300"},
             {End, "499.9\n", {"setSelectEndFrameNo 1 499"}, "499"},
             {Offset, "-20\n", {"setTriggerOffset 1 -20"}, "-20"},
             {Offset, "0\n", {"setTriggerOffset 1 0"}, "0"},
             {End, "5-400\n", {}, "5-400"},
             {Offset, "some\t", {}, "some"},
             {Offset, "12 13\x1b", {}, "0"},
             {Offset, "\t", {}, "0"},
             {Offset, "7\x1b\t", {}, "0"},
         }) {
        SCOPED_TRACE(c.word + c.text.toStdString());
        EXPECT_EQ(sent([&] { type(box(c.word, "1"), c.text); }), c.calls);
        page.tick();
        EXPECT_EQ(shown(box(c.word, "1")), c.answer);
        bool isNumber = false;
        c.answer.toInt(&isNumber);
        EXPECT_EQ(mark(box(c.word, "1")), isNumber ? "" : "wren-wrong");
    }
    EXPECT_EQ(kept(1), "900 to 1099");
}

/// What was entered goes out, and nothing else does.
TEST_F(PageNumbers, KeepWhatIsBeingTyped) {
    const char* inReverse = R"(
        const fetch = wrentabledialog_obj.fetchRecords;
        wrentabledialog_obj.fetchRecords = function (tab) {
            const data = JSON.parse(JSON.stringify(fetch.call(this, tab)));
            data.records.reverse().forEach((record, index) => { record.recid = index + 1; });
            return data;
        };
        wrentabledialog_obj.update();
        wrentabledialog_obj.fetchRecords = fetch; return 0)";
    const QString end = box(End, "1");
    const auto comeBack = [&] {
        page.run("const at = document.querySelector('" + end + "'); at.focus(), at.setSelectionRange(2, 2); return 0");
    };
    for (const auto& [what, happens] : QList<Happening>{
             {"a tick", [&] { page.tick(); }},
             {"an update", [&] { page.update(); }},
             {"another order of the cameras", [&] { page.run(inReverse); }},
             {"a camera less", [&] { vanish(2); }},
             {"another order of the columns",
              [&] {
                  test.host.prefs().setValue("wren/column_order/memoryInfo", "cameraName,selectEndFrameNo");
                  page.run("wrentabledialog_obj.autoUpdate(); return 0");
              }},
             {"its camera silent for a moment",
              [&] {
                  test.host.faults().plant(1, "getSelectEndFrame", Fault{"silent"}), page.tick();
                  EXPECT_EQ(page.number("$('" + end + "').length"), 0);
                  test.host.faults().plant(1, "getSelectEndFrame", Fault()), page.tick();
                  test.desk.shown.clear();
                  comeBack();
              }},
             {"a box", [&] { leaveWindow(); }},
             {"the window minimised",
              [&] { page.window().showMinimized(), leaveWindow(), page.window().showNormal(); }},
             {"another plug-in",
              [&] {
                  for (const bool on : {true, false}) {
                      test.host.flags().set("IsOtherPluginOpen", on), page.tick();
                  }
                  comeBack();
              }},
         }) {
        SCOPED_TRACE(what);
        EXPECT_EQ(sent([&, happens = happens] {
                      type(end, "-10");
                      page.key(Qt::Key_Left);
                      happens();
                  }),
                  QStringList());
        EXPECT_EQ(shown(end) + ' ' + mark(end), "-10 wren-typed");
        EXPECT_EQ(sent([&] { page.type("5\n"); }), QStringList("setSelectEndFrameNo 1 -150")) << "where the caret was";
        EXPECT_EQ(mark(end), "");
    }
    EXPECT_EQ(kept(1), "200 to 450");

    type(box(End, "-1"), "-");
    vanish(4);
    EXPECT_EQ(sent([&] { page.type("50\n"); }), QStringList("setSelectEndFrameNo 1,3 -50")) << "of the batch row too";
    EXPECT_EQ(kept(1), "200 to 550");
    EXPECT_EQ(kept(3), "0 to 450");
}

TEST_F(PageNumbers, GoOutWhenTheKeyboardIsTakenFromThePageOrWhenTheyMay) {
    const QString end = box(End, "1");
    type(end, "-100");
    EXPECT_EQ(sent([&] { page.window().findChild<QWebView*>()->clearFocus(); }),
              QStringList("setSelectEndFrameNo 1 -100"));
    type(end, "-110");
    EXPECT_EQ(sent([&] { page.click("a[href=\"#memoryInfoTab\"]"); }), QStringList("setSelectEndFrameNo 1 -110"));
    test.desk.whileStanding = [&] {
        type(end, "-90\t");
        EXPECT_EQ(mark(end), "wren-typed") << "under a question nothing is changed";
        page.update();
        EXPECT_EQ(shown(end) + ' ' + mark(end), "-90 wren-typed");
        EXPECT_EQ(kept(1), "200 to 490");
    };
    page.run("wrentabledialog.confirm('Sure?')");
    EXPECT_EQ(test.desk.take(), QStringList("Sure?"));
    page.tick();
    EXPECT_EQ(kept(1), "200 to 510");
    page.settle();
    EXPECT_EQ(mark(end), "");
}

TEST_F(PageNumbers, OfTheBatchRowGoToAllCamerasEachWithItsLimits) {
    const QString all = box(Start, "-1");
    page.run("const at = document.getElementById('wren_spinner_select_start_frameno-1'); at.focus(); return 0");
    EXPECT_EQ(shown(all), "-500") << "it stands for the last camera";
    EXPECT_EQ(sent([&] { type(all, "20\n"); }), QStringList("setSelectStartFrameNo 1,2,3,4 20"));
    EXPECT_EQ(QStringList({kept(1), kept(2), kept(3)}), QStringList({"620 to 900", "20 to 40", "520 to 999"}));
    EXPECT_EQ(sent([&] { page.key(Qt::Key_Up); }), QStringList("setSelectStartFrameNo 1,2,3,4 21"));
    EXPECT_EQ(sent([&] { type(all, "-1000\n"); }), QStringList("setSelectStartFrameNo 1,2,3,4 -1000"));
    EXPECT_EQ(QStringList({kept(1), kept(2), kept(3)}), QStringList({"100 to 900", "0 to 40", "0 to 999"}));
    EXPECT_EQ(shown(all), "-500");
    EXPECT_EQ(sent([&] { type(all, "-500\n"); }), QStringList("setSelectStartFrameNo 1,2,3,4 -500"))
        << "the number that stands there already is not yet that of the others";
}

TEST_F(PageNumbers, ShowWhatTheCameraAnswers) {
    test.host.faults().plant(1, "setSelectRange", Fault{"no"});
    // The update after the change does not reach the page, so that the tick is what mends the box.
    page.run("wrentabledialog_obj.update = () => undefined; return 0");
    type(box(Start, "1"), "0\n");
    EXPECT_EQ(test.desk.take().filter(": no").size(), 1);
    EXPECT_EQ(shown(box(Start, "1")), "0");
    page.tick();
    EXPECT_EQ(shown(box(Start, "1")), "-400");
    EXPECT_EQ(page.tick(), QStringList());
    for (int again = 0; again < 2; ++again) {
        EXPECT_EQ(sent([&] { page.key(Qt::Key_Up); }), QStringList("setSelectStartFrameNo 1 -399")) << again;
        page.tick();
    }
    test.desk.shown.clear();
}

TEST_F(PageNumbers, SendNothingWhenTheyAreCutOff) {
    struct Case {
        const char* what;
        std::function<void(DOCKEY key)> happens;
    };
    const auto becomes = [&](const QVariantMap& values) {
        return [this, values](DOCKEY key) { test.camera(key).change(values), page.update(); };
    };
    const auto enters = [&](zeb::OperatingMode mode) { return [this, mode](DOCKEY) { page.enter(mode); }; };
    const auto begin = [&](DOCKEY key) {
        test.camera(key).change({{"connected", true}, {"recorded", true}, {"selectedRange", QVariantList{200, 900}}});
        page.enter(zeb::MemoryMode);
        page.update();
        EXPECT_TRUE(page.until("$('link.replaced, .w2ui-lock').length === 0")) << "what covers the rows fades out";
    };
    for (const Case& c : QList<Case>{
             {"the camera gone quiet", becomes({{"connected", false}})},
             {"its frames erased", becomes({{"recorded", false}})},
             {"another mode", enters(zeb::LiveMode)},
             {"file mode", enters(zeb::FileMode)},
             {"the camera gone", [&](DOCKEY key) { vanish(key); }},
         }) {
        SCOPED_TRACE(c.what);
        begin(1);
        watchRepeats();
        const QStringList calls = sent([&] {
            pressArrow(box(Start, "1"), true);
            EXPECT_EQ(repeats(), 1) << "the arrow is about to go on";
            c.happens(1);
            EXPECT_EQ(widgets(), 0);
            EXPECT_EQ(repeats(), 0);
            page.releaseOutside();
        });
        EXPECT_EQ(calls, QStringList("setSelectStartFrameNo 1 -399"));

        begin(3);
        const QStringList typed = page.made("^set|^userOperationLog", [&] {
            type(box(Start, "3"), "-35");
            c.happens(3);
        });
        EXPECT_EQ(typed.filter("setSelect"), QStringList());
        EXPECT_THAT(typed.join('\n').toStdString(),
                    testing::HasSubstr("not sent TextBox wren_spinner_select_start_frameno3  -35"));
    }
}

/// The button is let go over a message that came up during the press, and the page never hears of it.
TEST_F(PageNumbers, StandStillAfterAMessage) {
    watchRepeats();
    const auto pressUnderAMessage = [this](const char* message, const QString& number) {
        test.host.faults().plant(1, "setSelectRange", Fault{message});
        int beforeIt = -1;
        test.desk.whileStanding = [&] {
            beforeIt = repeats();
            leaveWindow();
        };
        const QStringList calls = sent([&] { pressArrow(number, true); });
        EXPECT_EQ(test.desk.take().size(), 1);
        EXPECT_EQ(beforeIt, 0) << "no step is due before the last one has been taken";
        EXPECT_EQ(repeats(), 0);
        page.release();
        return calls;
    };
    type(box(Start, "1"), "-350");
    EXPECT_EQ(pressUnderAMessage("busy", box(End, "1")), QStringList("setSelectStartFrameNo 1 -350"))
        << "of the box that was left";
    test.host.faults().plant(1, "setSelectRange", Fault());
    EXPECT_EQ(sent([&] { pressArrow(box(End, "1"), false); }), QStringList("setSelectEndFrameNo 1 299"));
    EXPECT_EQ(repeats(), 1) << "another press counts again";
    page.release();
    EXPECT_EQ(repeats(), 0);
    EXPECT_EQ(pressUnderAMessage("asleep", box(End, "1")), QStringList("setSelectEndFrameNo 1 300"))
        << "of its own step";
}

TEST(PageNumber, ThatIsBeingTypedStaysWithItsRowWhenThatIsScrolledAway) {
    TestHost test(connected(60));
    test.host.appStatus().enterMode(zeb::MemoryMode);
    for (Camera* camera : test.host.cameras().all()) {
        camera->change({{"recorded", true}, {"recordedRange", QVariantList{0, 99}}});
    }
    TablePage page(test, 5);
    const QString start = box(Start, "3");
    page.pressAt(start, 0.85, 0.5);
    page.release();
    page.type("1");  // where the click has put the caret
    page.number("probe.scrollTo(100000)");
    const auto scrollingBack = [&] {
        page.update();
        EXPECT_EQ(page.number("$('tr[recid=60]')[0].offsetTop - $('tr[recid=3]')[0].offsetTop"), 57 * 34);
        page.number("probe.scrollTo(0)");
    };
    EXPECT_EQ(page.made("^set", [&] { page.key(Qt::Key_PageDown); }), QStringList()) << "it shows the box";
    EXPECT_LT(page.number("probe.grid().last.scrollTop"), 200);
    page.number("probe.scrollTo(100000)");
    EXPECT_EQ(page.made("^set", scrollingBack), QStringList());
    EXPECT_EQ(page.list("probe.drawn().map(probe.keyOf)").mid(0, 4), QStringList({"1", "2", "3", "4"}));
    EXPECT_EQ(page.made("^set", [&] { page.type("2\n"); }), QStringList("setSelectStartFrameNo 3 12"));
    pressKey(QStringLiteral("Ctrl+A"), 0, [] { return false; });
    EXPECT_EQ(page.made("^set", [&] { page.type("7\n"); }), QStringList("setSelectStartFrameNo 3 7"));
}

TEST(PageRecordCheck, OfSelectedCamerasOnly) {
    TestHost test(connected(3));
    for (const DOCKEY key : {1U, 2U, 3U}) {
        test.camera(key).change({{"recorded", true}, {"recordedRange", QVariantList{0, 99}}});
    }
    test.host.appStatus().enterMode(zeb::MemoryMode);
    TablePage page(test, 5);
    choose(test, {"1", "3"});
    page.update();
    const auto checked = [&test] { return camerasWith(test, &CameraState::recordCheck).join(','); };
    for (const QString& tab : {QStringLiteral("memoryInfo"), QStringLiteral("memoryPlugin")}) {
        page.show(tab == "memoryInfo" ? 5 : 6);
        const QString check = "#wren_" + tab + "_recordCheck_";
        page.click(check + "1");
        EXPECT_EQ(checked(), "1") << tab.toStdString();
        EXPECT_EQ(page.text(QString("$('%1').parent().attr('class')").arg(check + "1")),
                  "flexWrapper wren-recordCheck-status");
        EXPECT_TRUE(page.run(QString("$('%1').prop('disabled')").arg(check + "2")).toBool()) << "not selected";
        page.click(check + "2");
        EXPECT_EQ(checked(), "1");
        EXPECT_EQ(page.list("probe.selected()"), QStringList({"1", "3"})) << "the click chose no row";
        // Chosen no more a moment ago: the page has not heard of it.
        choose(test, {"1"});
        page.click(check + "3");
        EXPECT_EQ(checked(), "1");
        page.tick();
        EXPECT_FALSE(page.run(QString("$('%1').prop('checked')").arg(check + "3")).toBool());
        choose(test, {"1", "3"});
        page.update();
        page.click(check + "1");
        EXPECT_EQ(checked(), "");
        test.host.flags().set("IsOtherPluginOpen", true);
        page.tick();
        page.click(check + "1");
        EXPECT_EQ(checked(), "");
        test.host.flags().set("IsOtherPluginOpen", false);
        page.update();
    }
}

}  // namespace
