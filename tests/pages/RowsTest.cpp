#include "TablePage.h"
#include "ZebTypes.h"

#include <QDialog>
#include <QJsonObject>

namespace {

struct TickCase {
    const char* what;
    QVariantMap change;
    QStringList fields;  ///< that are written, in the order of their names
    const char* script;  ///< of what the row shows; %1 is its key
    QString shown;
};

/// Each case changes a camera of its own behind the table's back.
void checkTicks(int tab, const QList<TickCase>& cases) {
    TestHost test(connected(64));
    // The first camera in low light mode switches controls outside the rows.
    test.camera(64).change({{"lowLight", true}});
    TablePage page(test, tab);
    choose(test, {"1"});
    page.update();
    EXPECT_EQ(page.tick(), QStringList());
    DOCKEY key = 1;
    for (const TickCase& c : cases) {
        SCOPED_TRACE(c.what);
        test.camera(++key).change(c.change);
        QStringList places;
        for (const QString& field : c.fields) {
            places << (field.contains('/') ? field : QString::number(key) + "/" + field);
        }
        EXPECT_EQ(page.tickRows(), places);
        EXPECT_EQ(page.text(QString(c.script).replace("%1", QString::number(key))), c.shown);
        EXPECT_EQ(page.tick(), QStringList()) << "the second time";
    }
    test.camera(63).change({{"comment", "far below"}, {"rate", 2000}, {"locked", true}});
    EXPECT_EQ(page.tickRows(), QStringList()) << "a row that is out of sight";
    page.number("probe.scrollTo(100000)");
    EXPECT_EQ(page.number("$('.wren-lock-status[dockey=63]').length"), 1)
        << "and is up to date when it comes into view";
}

TEST(PageTick, WritesWhatChangedInTheCameraInformation) {
    const QString comment = QStringLiteral("left") + zeb::CommentSeparator + "lens";
    checkTicks(
        0,
        {{"comment", {{"comment", comment}}, {"comment"}, "$('#wren_cameraInfo_comment_%1').text()", "left"},
         {"alert",
          {{"alerts", QStringList{"warm", "dark"}}},
          {"alert"},
          "$('#wren_cameraInfo_alert_%1').attr('alert') + $('#wren_cameraInfo_alert_%1').attr('alerts')",
          "truewarm\ndark"},
         {"status",
          {{"status", zeb::CameraRecording}},
          {"cameraStatus"},
          "$('#wren_cameraInfo_cameraStatus_%1').attr('status')",
          "Recording..."},
         {"signal", {{"syncStatus", "Over Sync"}}, {"sync"}, "$('#wren_cameraInfo_sync_%1').attr('sync')", "Over Sync"},
         {"mobile",
          {{"mobile", true}},
          {"connectIcon"},
          "$('#wren_cameraInfo_connectIcon_%1').attr('connected')",
          "mobile"},
         {"selection", {{"selected", true}}, {"row"}, "probe.selected().join()", "1,7"},
         {"lock",
          {{"locked", true}},
          {"cameraName", "comment", "connectionStatus", "lock"},
          "$('[id$=_%1][disabled], [id$=_%1][cursorDisable=true], .wren-lock-status[dockey=%1]').length + ''",
          "5"},
         {"name, which only a full refresh shows",
          {{"name", "other"}},
          {},
          "$('.wren_label_edit_camera_name[dockey=%1]').text()",
          "Camera 9"},
         {"disconnected",
          {{"connected", false}},
          {"alert", "cameraName", "cameraStatus", "connectIcon", "connectionStatus", "lock", "sync"},
          "$('[id^=wren_button_connection_][id$=_%1]:visible').attr('class') + "
          "$('.wren-lock-status[dockey=%1]').length",
          "wren_button_connection_disconnect0"}});
}

TEST(PageTick, WritesWhatChangedInTheLiveControl) {
    const char* waiting = "$('.wren_button_reduce[dockey=%1][disabled]').length + ''";
    const char* lowLight =
        "$('.wren_button_lowlight[dockey=%1]:visible')[0].id + $('#wren_livecontrol_framerate_%1:disabled').length";
    const char* locked =
        "$('a[disabled][dockey=%1], .SumoSelect.disabled[dockey=%1] .wren_livecontrol_framerate').length + ''";
    checkTicks(
        1,
        {{"rate", {{"rate", 2000}}, {"frameRate"}, "$('p.wren_livecontrol_framerate[dockey=%1]').text()", "2000 fps"},
         {"shutter", {{"shutter", 4000}}, {"shutterSpeed"}, "$('#wren_livecontrol_shutterSpeed_%1').val()", "4000"},
         {"resolution",
          {{"resolution", QVariantList{512, 256}}},
          {"resolution"},
          "$('#wren_livecontrol_resolution_%1').val()",
          "512 x 256"},
         {"trigger", {{"triggerMode", 2}}, {"trigger"}, "$('#wren_livecontrol_trigger_%1').text()", "End"},
         {"reduce",
          {{"reduce", true}},
          {"reduce"},
          "$('.wren_button_reduce[dockey=%1]:visible')[0].id",
          "wren_button_reduce_on_6"},
         {"reduce that waits, and so for all", {{"suspendReduce", true}}, {"reduce"}, waiting, "2"},
         {"low light",
          {{"lowLight", true}},
          {"frameRate", "lowlight", "resolution", "trigger"},
          lowLight,
          "wren_button_lowlight_off_81"},
         {"lock",
          {{"locked", true}},
          {"cameraName", "frameRate", "lock", "lowlight", "reduce", "resolution", "shutterSpeed", "trigger"},
          locked,
          "7"}});
}

TEST(PageTick, LeavesAnOpenListAlone) {
    TestHost test(connected(60));
    TablePage page(test, 1);
    const auto open = [&] {
        page.click(".SumoSelect[dockey=\"2\"] p.wren_livecontrol_framerate");
        return page.number("$('.wren-dropdown .options li').length");
    };
    EXPECT_EQ(open(), 13) << "the rates of the model";
    test.camera(2).change({{"rate", 2000}});
    EXPECT_EQ(page.tickRows(), QStringList("2/frameRate"));
    EXPECT_EQ(page.number("$('.wren-dropdown').length"), 1);
    test.host.faults().plant(3, "getRecordRate", Fault{"no answer"});
    test.camera(4).change({{"rate", 2000}});
    EXPECT_EQ(page.tickRows().filter("frameRate"), QStringList({"3/frameRate", "4/frameRate"}));
    EXPECT_EQ(page.number("$('.wren-dropdown').length"), 1) << "a camera that fails is another's affair";
    test.host.faults().clear();
    EXPECT_EQ(test.desk.take(), QStringList("Camera 3: no answer"));
    page.update();
    EXPECT_EQ(page.number("$('.wren-dropdown').length"), 0) << "a full refresh closes it";
    open();
    page.number("probe.scrollTo(500)");
    EXPECT_EQ(page.number("$('.wren-dropdown').length"), 0) << "so does scrolling";
    EXPECT_EQ(test.camera(2).get(&CameraState::rate), 2000U) << "and nothing was chosen";
}

/// Cameras in all kinds of states, another one for each camera when `turn` differs.
void vary(TestHost& test, int cameras, int turn) {
    const QList<QVariantMap> kinds = {
        {{"connected", false}},
        {{"locked", true}, {"comment", "first\nsecond"}, {"recordCheck", true}},
        {{"lowLight", true}, {"shutter", 4000}, {"recorded", false}},
        {{"alerts", QStringList{"warm"}}, {"selected", true}, {"rate", 2000}, {"plugins", QStringList{}}},
        {{"reduce", true}, {"resolution", QVariantList{512, 512}}, {"triggerMode", 1}, {"irig", true}},
        {{"mobile", true}, {"status", zeb::CameraRecReady}, {"syncStatus", "Sync In"}, {"recordedTrigger", 200}},
        {{"rate", 7}, {"shutter", 7}, {"effectivePlugins", QStringList{"lut"}}},  // not in the lists
        {{"plugins", QStringList{"mosaic", "lut"}}, {"selectedRange", QVariantList{20, 80}}},
    };
    const CameraState plain = standardRig(1).devices.first().heads.first();
    for (int i = 0; i < cameras; ++i) {
        QVariantMap state = plain.toPlain();
        state.insert("name", QStringLiteral("Camera %1 of turn %2").arg(i).arg(turn));
        state.insert("connected", true);
        state.insert("recorded", true);
        state.insert("recordedRange", QVariantList{i, 1000 + i});
        const QVariantMap& kind = kinds.at((i + turn) % kinds.size());
        for (auto member = kind.begin(); member != kind.end(); ++member) {
            state.insert(member.key(), member.value());
        }
        test.camera(DOCKEY(i + 1)).change(state);
    }
}

TEST(PageTick, WhatFloatsOverARowFollowsItOrGoes) {
    TestHost test(connected(3));
    TablePage page(test, 1);
    const char* tip = "$('.ui-tooltip-content').text()";
    test.camera(2).change({{"alerts", QStringList{"The fan turns slowly"}}});
    page.tick();
    page.run("$('#wren_livecontrol_alert_2').trigger('mouseover'); return 0");
    EXPECT_EQ(page.text(tip), "The fan turns slowly");
    test.camera(2).change({{"alerts", QStringList{"<b>hot</b>"}}});
    page.tick();
    EXPECT_EQ(page.text(tip), "<b>hot</b>");
    test.camera(2).change({{"alerts", QStringList()}});
    page.tick();
    EXPECT_EQ(page.text(tip), "") << "there is nothing to tell any more";

    page.click(".SumoSelect[dockey=\"2\"] p.wren_livecontrol_framerate");
    EXPECT_EQ(page.number("$('.wren-dropdown').length"), 1);
    page.window().resize(1500, 900);
    EXPECT_TRUE(page.until("$('.wren-dropdown').length === 0")) << "the row is elsewhere now";
}

TEST(PageRows, RowsUsedAgainEqualRowsDrawnNew) {
    constexpr int Cameras = 100;
    for (int tab = 0; tab < 7; ++tab) {
        // This page comes from the other mode, so that the tab has never been drawn.
        const bool memory = tab >= 5;
        TestHost fresh(connected(Cameras));
        fresh.host.appStatus().enterMode(memory ? zeb::LiveMode : zeb::MemoryMode);
        const QVariantMap drawn = [&] {
            TablePage page(fresh, memory ? 0 : 5);
            vary(fresh, Cameras, 2);
            page.show(tab);
            return page.run("probe.shapes()").toObject().toVariantMap();
        }();

        TestHost used(connected(Cameras));
        TablePage page(used, tab);
        vary(used, Cameras, 0);
        page.update();
        page.number("probe.scrollTo(400)");
        page.number("probe.scrollTo(100000)");
        EXPECT_FALSE(page.list("probe.drawn().map(probe.keyOf)").contains("2")) << "the first rows were given away";
        vary(used, Cameras, 1);
        page.tick();
        page.number("probe.scrollTo(900)");
        vary(used, Cameras, 2);
        page.update();
        EXPECT_GT(page.number("$(`#grid_${probe.grid().name}_records`)[0].scrollTop"), 0)
            << "an update does not scroll";
        page.number("probe.scrollTo(0)");
        const QVariantMap again = page.run("probe.shapes()").toObject().toVariantMap();

        EXPECT_EQ(drawn.keys(), again.keys()) << "tab " << tab;
        EXPECT_GT(drawn.size(), 29 * 6) << "tab " << tab;
        for (const QString& key : drawn.keys()) {
            EXPECT_EQ(again.value(key).toString(), drawn.value(key).toString())
                << key.toStdString() << " of tab " << tab;
        }
    }
}

const char* FocusedKey = "keyboardHome.grid() === document.activeElement ? String(viewAt(1).cursor.key) : ''";

void vanish(TestHost& test, DOCKEY key) {
    test.host.faults().plant(key, "*", {{}, 0, true});
}

TEST(PageRows, TheKeyboardStaysWithItsCamera) {
    TestHost test(connected(60));
    TablePage page(test, 1);
    page.run("viewAt(1).cursor.moveTo(4, 6); return 0");
    EXPECT_EQ(page.text(FocusedKey), "5");
    choose(test, {"4"});
    vanish(test, 2);
    page.tick();
    EXPECT_EQ(page.text(FocusedKey), "5");
    EXPECT_EQ(page.list("probe.selected()"), QStringList("4")) << "nor does a selection move to another row";
    page.update();
    EXPECT_EQ(page.text(FocusedKey), "5") << "the row is one line higher now";
    EXPECT_EQ(page.text("$('#wren-livecontrol-list td[current]').closest('tr').attr('recid')"), "4");

    page.number("probe.scrollTo(100000)");
    EXPECT_EQ(page.text(FocusedKey), "5") << "out of sight";
    vanish(test, 5);
    page.update();
    EXPECT_EQ(page.text(FocusedKey), "6") << "the next one, when its own camera goes";
}

TEST(PageRows, AnOpenListSendsToTheCameraItWasOpenedFor) {
    TestHost test(connected(60));
    TablePage page(test, 1);
    page.click(".SumoSelect[dockey=\"5\"] p.wren_livecontrol_framerate");
    test.host.flags().set("IsUpdateIgnore", true);  // a full update would close the list
    vanish(test, 2);
    page.tick();
    const int place = page.number("$('.wren-dropdown option').get().findIndex(option => option.value === '2000')");
    page.click(QString(".wren-dropdown .options li:nth-child(%1)").arg(place + 1));
    QStringList changed;
    for (Camera* camera : test.host.cameras().all()) {
        if (camera->get(&CameraState::rate) != 1000) {
            changed << QString("%1 to %2").arg(camera->key()).arg(camera->get(&CameraState::rate));
        }
    }
    EXPECT_EQ(changed, QStringList("5 to 2000"));
    EXPECT_EQ(page.text(FocusedKey), "5");
}

}  // namespace
