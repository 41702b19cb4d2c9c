#include "TablePage.h"

#include <gmock/gmock.h>

// The slider of the low light mode, and the shutter speed that it shows.

namespace {

QString slider(const char* key) {
    return QString("#wren_slider_lowlight_%1").arg(key);
}
QString handle(const char* key) {
    return slider(key) + " .ui-slider-handle";
}

class PageSlider : public testing::Test {
protected:
    PageSlider() {
        connectCameras(test, 1, 4);
        for (const DOCKEY key : {1U, 4U}) {
            test.camera(key).change({{"lowLight", true}, {"shutter", 1000}});
        }
    }

    /// The calls of the bridge that have to do with a move.
    QStringList made(const std::function<void()>& work) { return page.made("AutoUpdate$|^setShutterSpeed$", work); }
    /// What a row shows of its speed: the number at the slider, where its handle stands, and the drop-down.
    QString shown(const char* key) {
        return page.text(QString("const rail = $('%1')[0].getBoundingClientRect();"
                                 "const spot = $('%1 .ui-slider-handle')[0].getBoundingClientRect();"
                                 "return [$('%1').closest('td').find('.slider-result').text(),"
                                 "    'at ' + Math.round(15 * ((spot.left + spot.right) / 2 - rail.left) / rail.width),"
                                 "    $('p.wren_livecontrol_shutterSpeed[dockey=\"%2\"]').text()].join(' ')")
                             .arg(slider(key), key));
    }
    int widgets() { return page.number("$('.ui-slider-range').length"); }

    TestHost test{standardRig(4)};
    TablePage page{test, 1};
};

TEST_F(PageSlider, MovesTheShutterSpeedWithItAndSendsOnce) {
    page.update();
    EXPECT_EQ(shown("1"), "10 at 10 1/1000 sec");
    QStringList sent;
    const auto drag = [&] {
        page.press(handle("1"));
        EXPECT_EQ(shown("1"), "10 at 10 1/1000 sec") << "a press on the handle moves nothing";
        page.move(slider("1"), 0.8);
        EXPECT_EQ(shown("1"), "12 at 12 1/250 sec");
        page.move(slider("1"), 0.2);
        EXPECT_EQ(shown("1"), "3 at 3 1/10000 sec");
        page.tick();
        EXPECT_EQ(shown("1"), "3 at 3 1/10000 sec") << "a tick leaves it alone";
        EXPECT_EQ(test.camera(1).get(&CameraState::shutter), 1000);
        page.move("#wren-livecontrol-list tr[recid=\"3\"] .wren_label_edit_camera_name");
        EXPECT_EQ(shown("1"), "0 at 0 1/100000 sec") << "beyond the end is the end";
        page.move(slider("1"), 0.4);
        page.release();
    };
    EXPECT_EQ(made([&] { sent = commands(test, page, drag); }),
              QStringList({"stopAutoUpdate", "setShutterSpeed 1 5000", "startAutoUpdate"}));
    EXPECT_EQ(sent, QStringList("setShutterSpeed 1 5000"));
    EXPECT_EQ(shown("1"), "6 at 6 1/5000 sec");
    EXPECT_EQ(widgets(), 0) << "it is plain again";
    EXPECT_EQ(page.list("probe.selected()"), QStringList({"1", "2", "3", "4"})) << "no row was selected by the way";

    page.click(slider("1"));
    EXPECT_THAT(test.camera(1).get(&CameraState::shutter), testing::AnyOf(3000, 4000))
        << "a click in the middle brings the handle there";
    EXPECT_EQ(made([&] {
                  page.press(handle("1"));
                  page.releaseOutside();
              }),
              QStringList({"stopAutoUpdate", "setShutterSpeed 1 100000", "startAutoUpdate"}))
        << "let go beyond the window";
}

TEST_F(PageSlider, OfTheBatchRowSetsAllConnectedCameras) {
    test.camera(2).change({{"connected", false}});
    page.update();
    QStringList sent;
    const auto drag = [&] {
        page.press(handle("-1"));
        page.move(slider("-1"), 0.95);
        EXPECT_EQ(shown("-1"), "14 at 14 1/60 sec");
        // The list of the camera that the batch row stands for is what counts.
        page.run(
            "const stands = views[1].newest.get('4');"
            "stands.shutterSpeeds = stands.shutterSpeeds.slice().reverse(); return 0");
        page.release();
    };
    EXPECT_EQ(made([&] { sent = commands(test, page, drag); }),
              QStringList({"stopAutoUpdate", "setShutterSpeed 1,3,4 50000", "startAutoUpdate"}));
    EXPECT_EQ(sent, QStringList("setShutterSpeed 1,3,4 50000"));
}

TEST_F(PageSlider, SendsNothingWhenItIsCutOff) {
    const auto low = [this](bool on) { test.camera(1).change({{"lowLight", on}}); };
    for (const auto& [what, happens] : QList<Happening>{
             {"a full update", [&] { page.update(); }},
             {"low light ended", [&] { low(false), page.tick(); }},
             {"locked",
              [&] {
                  test.camera(1).change({{"locked", true}}), page.tick();
              }},
             {"the window lost the keyboard", [&] { page.run("window.dispatchEvent(new Event('blur')); return 0"); }},
             {"another tab", [&] { page.show(0); }},
             {"another mode", [&] { page.enter(zeb::MemoryMode); }},
             {"file mode", [&] { page.enter(zeb::FileMode); }},
             {"an order of columns that was stored behind the page",
              [&] {
                  test.host.prefs().setValue("wren/column_order/livecontrol", "lowlight,shutterSpeed,lock,cameraName");
                  page.run("wrentabledialog_obj.autoUpdate(); return 0");
              }},
             {"the camera gone",
              [&] {
                  test.host.faults().plant(1, "*", {{}, 0, true});
                  page.update();
              }},
         }) {
        SCOPED_TRACE(what);
        test.camera(1).change({{"lowLight", true}, {"locked", false}});
        page.enter(zeb::LiveMode);
        page.show(1);
        page.update();
        const auto drag = [&, happens = happens] {
            page.press(handle("1"));
            page.move(slider("1"), 0.8);
            EXPECT_EQ(widgets(), 1);
            happens();
            EXPECT_EQ(widgets(), 0);
            page.releaseOutside();
        };
        EXPECT_EQ(made([&] { EXPECT_EQ(commands(test, page, drag), QStringList()); }),
                  QStringList({"stopAutoUpdate", "startAutoUpdate"}));
    }
}

TEST_F(PageSlider, TakesKeysAndKeepsTheFocus) {
    test.host.prefs().setValue("wren/display/shutterSpeed", false);
    page.run("wrentabledialog_obj.refreshAllControls()");
    page.settle();
    page.run("$('#wren_slider_lowlight_1 .ui-slider-handle')[0].focus(); return 0");
    for (const char* speed : {"500", "250"}) {
        EXPECT_EQ(commands(test, page, [&] { page.key(Qt::Key_Right); }),
                  QStringList(QString("setShutterSpeed 1 %1").arg(speed)));
    }
    EXPECT_EQ(page.text("$('#wren_slider_lowlight_1').closest('td').find('.slider-result').text()"), "12");
    EXPECT_TRUE(page.run("document.activeElement.matches('#wren_slider_lowlight_1 .ui-slider-handle')").toBool());
    EXPECT_EQ(commands(test, page, [&] { page.key(Qt::Key_A); }), QStringList());
    EXPECT_EQ(widgets(), 0);
}

}  // namespace
