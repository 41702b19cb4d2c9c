#include "TablePage.h"

#include <gmock/gmock.h>

// What goes out when the user changes something in a row, or in the batch row, and what the row shows in the end.

namespace {

TEST(PageEditing, OneCallForARowAndOneForAll) {
    TestHost test(standardRig(4));
    connectCameras(test, 1, 3);
    TablePage page(test, 1);
    test.camera(2).change({{"locked", true}});
    page.update();
    struct Case {
        std::function<void(const char* key)> act;
        QString call;       ///< to the bridge; %1 is the keys
        QString keysOfAll;  ///< that the batch row addresses
        QString command;    ///< to the cameras; what is not locked gets it
    };
    const auto picked = [&](const char* word, const char* value) {
        return [&page, word, value](const char* key) { page.pick(key, word, value); };
    };
    const auto clicked = [&](const char* id) {
        return [&page, id](const char* key) { page.click(QString("#%1_%2").arg(id, key)); };
    };
    const QString rows = "1,2,3,4";
    const QString connected = "1,2,3";
    for (const Case& c : QList<Case>{
             {picked("framerate", "2000"), "setFrameRate %1 2000", rows, "setRecordRate %1 2000"},
             {picked("shutterSpeed", "5000"), "setShutterSpeed %1 5000", rows, "setShutterSpeed %1 5000"},
             {picked("resolution", "512 x 256"), "setResolution %1 512 x 256", rows, "setResolution %1 512 256"},
             {picked("trigger", "2"), "setTriggerMode %1 2", rows, "setTriggerMode %1 "},
             {clicked("wren_button_reduce_off"), "setReduceMode %1 true", connected, "setReduceMode %1 true"},
             {clicked("wren_button_reduce_on"), "setReduceMode %1 false", connected, "setReduceMode %1 false"},
             {clicked("wren_button_lowlight_on"), "setLowLight %1 true", connected, "setLowLight %1 true"},
             {clicked("wren_button_lowlight_off"), "setLowLight %1 false", connected, "setLowLight %1 false"},
         }) {
        SCOPED_TRACE(c.call.toStdString());
        const auto checkRow = [&](const char* key, const QString& keys, const QString& docs) {
            QStringList made;
            const auto act = [&] { made = commands(test, page, [&] { c.act(key); }); };
            EXPECT_EQ(page.made("^(set|connect$)", act), QStringList(c.call.arg(keys)));
            ASSERT_EQ(made.size(), 1) << made.join('\n').toStdString();
            EXPECT_THAT(made.first().toStdString(), testing::StartsWith(c.command.arg(docs).toStdString()));
        };
        checkRow("1", "1", "1");
        checkRow("-1", c.keysOfAll, "1,3");
    }
}

TEST(PageEditing, AChoiceByKeysIsMadeOnce) {
    TestHost test(connected(3));
    TablePage page(test, 1);
    const auto byKeys = [&] {
        page.click(".SumoSelect[dockey=\"1\"] p.wren_livecontrol_framerate");
        page.key(Qt::Key_Down);
        page.key(Qt::Key_Return);
    };
    EXPECT_EQ(page.made("^set", byKeys), QStringList("setFrameRate 1 2000"));
    EXPECT_EQ(page.made("^set", [&] { page.pick("2", "trigger", "2"); }), QStringList("setTriggerMode 2 2"));
}

TEST(PageEditing, TheBatchRowStandsForTheRowsThatAreShown) {
    TestHost test(standardRig(4));
    connectCameras(test, 1, 3);
    TablePage page(test, 1);
    page.run(
        "const filter = document.getElementById('recordFilter'); filter.value = '1';"
        "filter.dispatchEvent(new Event('change')); return 0");
    page.settle();
    test.camera(2).change({{"connected", false}});
    test.camera(4).change({{"connected", true}});
    page.tick();
    EXPECT_EQ(page.made("^set", [&] { page.click("#wren_button_lowlight_on_-1"); }),
              QStringList("setLowLight 1,3 true"));
}

TEST(PageEditing, TheSecondClickOfADoubleClickTakesNothingBack) {
    TestHost test(connected(3));
    TablePage page(test, 1);
    const char* clicks = R"(['unlock', 'lock'].forEach((word, index) => document
        .getElementById(`wren_livecontrol_button_lockStatus_${word}_2`)
        .dispatchEvent(new MouseEvent('click', { bubbles: true, cancelable: true, detail: index + 1 }))); return 0)";
    EXPECT_EQ(commands(test, page, [&] { page.run(clicks); }), QStringList{"setParamLock 2 true"});
}

/// A control that the user touches, and what it must show when the camera did not do as it was told.
struct Refusal {
    const char* operation;
    bool clamped;  ///< by the camera itself, else the operation fails
    int tab;
    std::function<void(TablePage& page)> act;
    const char* shown;
};

TEST(PageEditing, ARefusedChangeShowsWhatTheCameraAnswers) {
    const auto picked = [](const char* word, const char* value) {
        return [word, value](TablePage& page) { page.pick("1", word, value); };
    };
    const auto clicked = [](const char* selector) { return [selector](TablePage& page) { page.click(selector); }; };
    const char* low =
        "$('#wren_slider_lowlight_2').closest('td').find('.slider-result').text() + "
        "$('p.wren_livecontrol_shutterSpeed[dockey=2]').text()";
    for (const Refusal& c : QList<Refusal>{
             {"setRecordRate", false, 1, picked("framerate", "2000"),
              "$('p.wren_livecontrol_framerate[dockey=1]').text()"},
             {"setShutterSpeed", true, 1, picked("shutterSpeed", "500"),
              "$('p.wren_livecontrol_shutterSpeed[dockey=1]').text()"},
             {"setResolution", false, 1, picked("resolution", "512 x 256"),
              "$('#wren_livecontrol_resolution_1').val()"},
             {"setTriggerMode", false, 1, picked("trigger", "2"), "$('#wren_livecontrol_trigger_1').val()"},
             {"setReduceMode", false, 1, clicked("#wren_button_reduce_off_1"),
              "$('.wren_button_reduce[dockey=1]:visible').get().map(one => one.id).join()"},
             {"setLowLight", false, 1, clicked("#wren_button_lowlight_on_1"),
              "$('.wren_button_lowlight[dockey=1]:visible').get().map(one => one.id).join()"},
             {"setShutterSpeed", false, 1,
              [](TablePage& page) {
                  page.press("#wren_slider_lowlight_2 .ui-slider-handle");
                  page.move("#wren_slider_lowlight_2", 0.95);
                  page.releaseOutside();
              },
              low},
             {"setParamLock", false, 0, clicked("#wren_cameraInfo_button_lockStatus_unlock_1"),
              "$('#wren-cameraInfo-list [class*=wren_button_lockStatus][dockey=1]:visible')[0].id"},
             {"disconnectDocs", false, 0,
              [](TablePage& page) {
                  page.click("#wren_button_connection_connect_1");
                  EXPECT_TRUE(page.until("$('.w2ui-lock:visible').length === 0"));
              },
              "$('[id^=wren_button_connection_][dockey=1]:visible')[0].id"},
         }) {
        SCOPED_TRACE(std::string(c.operation) + (c.clamped ? ", clamped" : ""));
        TestHost test(connected(2));
        TablePage page(test, c.tab);
        test.camera(2).change({{"lowLight", true}});
        page.update();
        if (!c.clamped) {
            for (const DOCKEY key : {1, 2}) {
                test.host.faults().plant(key, c.operation, Fault{"no"});
            }
        }
        const QString answer = page.text(c.shown);
        // The update after the change does not reach the page, so that the tick is what mends the cell.
        page.run("wrentabledialog_obj.update = () => undefined; return 0");
        c.act(page);
        EXPECT_NE(page.text(c.shown), answer) << "the user's wish stands for a moment";
        page.tick();
        EXPECT_EQ(page.text(c.shown), answer);
        EXPECT_EQ(page.tick(), QStringList());
        EXPECT_EQ(test.desk.take().filter(": no").size(), c.clamped ? 0 : 1) << "who is told of the refusal";
        test.host.faults().clear();  // the table's end unlocks too
    }
}

}  // namespace
