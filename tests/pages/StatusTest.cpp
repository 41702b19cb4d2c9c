#include "TablePage.h"

// The line that tells how all cameras stand, the list of the last result, the marks of the batch row, and the view of
// the rows that need a look.

namespace {

const char* Keys = "probe.drawn().map(probe.keyOf)";
const char* Hostile = "<img src=x onerror='window.hostile = 1'>\"&amp;";

QString line(TablePage& page) {
    return page.text(
        "['counts', 'result', 'search'].map(part => document.getElementById('wren_status_' + part))"
        ".filter(element => !element.hidden).map(element => element.textContent).join(' | ')");
}

TEST(PageStatus, TellsOfAllCamerasWhateverIsListed) {
    TestHost test(connected(5));
    TablePage page(test, 1);
    page.tick();
    EXPECT_EQ(line(page), "found 5, connected 5, locked 0 | ");
    test.camera(2).change({{"name", Hostile}, {"locked", true}});
    test.host.faults().plant(4, "setRecordRate", {"busy"});
    test.camera(5).change({{"connected", false}});
    page.run("document.getElementById('recordFilter').value = '1'; wrentabledialog_obj.update(); return 0");
    page.pick("-1", "framerate", "2000");
    test.desk.take();
    EXPECT_EQ(line(page), "found 5, connected 4, locked 1 | Frame rate: not taken 1, kept by lock 1 | ");
    EXPECT_FALSE(page.run("$('#wren_results').is(':visible')").toBool()) << "it is no box";

    page.click("#wren_status_result");
    EXPECT_EQ(page.list("$('#wren_results a[rowkey]').get().map(link => link.getAttribute('rowkey'))"),
              QStringList({"4", "2", "1", "3"}))
        << "what did not come about first";
    EXPECT_TRUE(page.text("$('#wren_results').text()").contains(Hostile));
    page.click("#wren_results [verdict='refused']");
    EXPECT_EQ(page.list("$('#wren_results tr td').get().map(cell => cell.textContent)"),
              QStringList({"Camera 4", "not taken", "2000 fps", "1000 fps", "busy"}));
    page.click("#wren_results a[rowkey='4']");
    EXPECT_EQ(page.list("$('.wren-pointed').get().map(probe.keyOf)"), QStringList("4"));

    test.host.faults().plant(4, "*", {{}, 0, true});
    page.update();
    page.click("#wren_results a[rowkey='4']");
    EXPECT_EQ(page.text("$('#wren_results .missing:visible span').text()"), "Camera 4 is not in the list.");
    EXPECT_EQ(page.list(Keys), QStringList({"1", "2", "3"})) << "nothing else is shown unless it is asked for";
    page.click("#wren_results .show-all");
    EXPECT_EQ(page.list(Keys), QStringList({"1", "2", "3", "5"}));
    EXPECT_EQ(page.text("String(window.hostile) + $('img[src=x]').length"), "undefined0");

    const auto lockAll = [&] { page.click("#wren_lock_all"); };
    EXPECT_EQ(page.made("^lock", lockAll), QStringList("lockAll true"));
    EXPECT_EQ(line(page), "found 4, connected 3, locked 3 | Lock: as asked 3 | ");
    EXPECT_EQ(page.made("^lock", lockAll), QStringList("lockAll false"));
    page.enter(zeb::FileMode);
    EXPECT_FALSE(page.run("$('#wren_status, #wren_results').is(':visible')").toBool());
}

TEST(PageStatus, MarksWhereTheRowsHaveOtherValuesThanTheBatchRowShows) {
    TestHost test(readRig("eight-mixed"));
    connectCameras(test, 1, 8);
    TablePage page(test, 1);
    const char* marks =
        "$('[differs]').get().map(box => probe.grid().columns[box.parentNode.getAttribute('col')].field + ' ' +"
        " box.getAttribute('differs'))";
    for (DOCKEY key = 1; key <= 8; ++key) {
        test.camera(key).change({{"rate", key < 4 ? 1000 : 500}, {"lowLight", false}, {"reduce", false}});
    }
    test.camera(7).change({{"connected", false}});
    choose(test, {"8"});
    page.update();
    EXPECT_TRUE(page.list(marks).contains("frameRate 2")) << page.list(marks).join(' ').toStdString();
    EXPECT_FALSE(page.list(marks).join(' ').contains("reduce"));
    const QString tip =
        "differencesText(viewAt(1), viewAt(1).batch.cells.find(cell => cell.field === 'frameRate').box)";
    EXPECT_EQ(page.text(tip),
              "1000 fps: 3 (Gate, Ramp, Nozzle left)\n500 fps: 4 (Nozzle right, Roof, Track, Stand-in)\n"
              "Shown: Stand-in");
    test.camera(1).change({{"rate", 250}});
    page.tick();
    EXPECT_TRUE(page.list(marks).contains("frameRate 3"));
    EXPECT_EQ(page.tick(), QStringList());
    test.camera(8).change({{"locked", true}});
    page.tick();
    EXPECT_TRUE(
        page.text(tip).endsWith("\nShown: Stand-in\nCan be changed on: 6 (Gate, Ramp, Nozzle left, Nozzle right, "
                                "Roof, ...)"));
    test.camera(8).change({{"locked", false}});
    page.tick();
    EXPECT_EQ(page.number("$('[barred]').length"), 0);

    page.click("#grid_wren-livecontrol-list_summary p.wren_livecontrol_framerate");
    const QStringList offers = page.list(
        "$('.wren-dropdown li').get().map(entry => entry.textContent + ' ' + "
        "(entry.getAttribute('offered') || '') + (entry.classList.contains('others-first') ? ' line' : ''))");
    EXPECT_EQ(offers.mid(0, 6), QStringList({"60 fps ", "125 fps 6 of 7", "250 fps 6 of 7", "500 fps ", "1000 fps ",
                                             "50 fps 2 of 7 line"}));
    const QString choice = "$('.wren-dropdown option').get().findIndex(option => option.value === '2000') + 1";
    const int place = page.number(choice);
    EXPECT_EQ(page.made("^set", [&] { page.click(QString(".wren-dropdown .options li:nth-child(%1)").arg(place)); }),
              QStringList("setFrameRate 1,2,3,4,5,6,7,8 2000"));
    test.desk.take();
}

TEST(PageStatus, AsksForTheSyncOfACameraWhenItsBadgeIsPointedAtAndAtNoTick) {
    TestHost test(connected(2));
    TablePage page(test, 1);
    const auto point = [&] {
        page.run("$('#wren_livecontrol_sync_2').trigger('mouseover'); return 0");
        EXPECT_TRUE(page.until("$('.ui-tooltip-content').length > 0"));
    };
    EXPECT_EQ(page.made("^getSyncVerdict", point), QStringList("getSyncVerdict 2"));
    const char* tip = "$('.ui-tooltip-content').text()";
    const QString verdict = "No Sync\nSynchronisation is not in use.\nRecord rate: 1000 fps";
    EXPECT_EQ(page.text(tip), verdict);
    EXPECT_EQ(page.made("^getSyncVerdict", [&] { page.tick(); }), QStringList());
    EXPECT_EQ(page.text(tip), verdict);
    page.run("$('#wren_livecontrol_sync_2').attr('dockey', '1'); return 0");
    page.tick();
    EXPECT_EQ(page.text(tip), "") << "it is of no other camera";
}

TEST(PageStatus, ListsWhatNeedsALookUntilTheViewIsLeft) {
    TestHost test(connected(6));
    for (DOCKEY key = 1; key <= 6; ++key) {
        test.camera(key).change({{"locked", key != 3 && key != 6}});
    }
    test.camera(2).change({{"alerts", QStringList("warm")}});
    test.camera(5).change({{"connected", false}});
    test.camera(6).change({{"syncStatus", "Over Sync"}});
    TablePage page(test, 1);
    for (DOCKEY key = 1; key <= 6; ++key) {
        test.camera(key).change({{"locked", key != 3 && key != 6}});  // the opening takes them away
    }
    page.update();
    page.click("#wren_attention");
    EXPECT_EQ(page.list(Keys), QStringList({"2", "3", "5", "6"}));
    EXPECT_TRUE(page.text("probe.batch().textContent").contains("These 4 cameras"));
    test.camera(2).change({{"alerts", QStringList()}});
    test.camera(4).change({{"locked", false}});
    page.tick();
    EXPECT_EQ(page.list(Keys), QStringList({"2", "3", "5", "6", "4"})) << "no click lands on another row";
    page.update();
    EXPECT_EQ(page.list(Keys), QStringList({"2", "3", "5", "6", "4"})) << "one that comes right stays";
    EXPECT_EQ(page.made("^setLowLight", [&] { page.click("#wren_button_lowlight_on_-1"); }),
              QStringList("setLowLight 2,3,6,4 true"));
    EXPECT_EQ(page.text("attention.batchKey()"), "6");
    test.camera(6).change({{"locked", true}, {"syncStatus", "Sync In"}});
    test.camera(4).change({{"rate", 500}});
    page.click("#wren_attention");
    page.click("#wren_attention");
    EXPECT_EQ(page.list(Keys), QStringList({"2", "3", "4", "5"})) << "a lock has kept 2 from low light";
    EXPECT_EQ(page.text("attention.batchKey()"), "4") << "one that stands";
    EXPECT_EQ(page.text("$('#grid_wren-livecontrol-list_summary p.wren_livecontrol_framerate').text()"), "500 fps");
    for (DOCKEY key : {2, 3, 4, 6}) {
        test.camera(key).change({{"locked", true}, {"alerts", QStringList()}, {"syncStatus", "Sync In"}});
    }
    page.click("#wren_lock_all");  // its result takes the place of the last one
    page.click("#wren_attention");
    page.click("#wren_attention");
    EXPECT_EQ(page.list(Keys), QStringList("5"));
    EXPECT_TRUE(page.run("return viewAt(1).newestBatch.connected === false").toBool()) << "it can be connected";
    page.click("#wren_attention");
    EXPECT_EQ(page.list(Keys), QStringList({"1", "2", "3", "4", "5", "6"}));
    EXPECT_TRUE(page.text("probe.batch().textContent").contains("All camera"));
}

}  // namespace
