#include "TablePage.h"

#include <QDialog>

namespace {

const char* Order = "wren/column_order/cameraInfo";
const char* FirstRow = "probe.cells(probe.drawn()[0])";

TEST(PageColumns, FollowAnOrderThatWasStoredBehindThePage) {
    TestHost test(connected(3));
    TablePage page(test);
    EXPECT_EQ(page.list("probe.captions()").mid(0, 4), QStringList({"Lock", "", "Camera name", "Alert"}));
    struct Case {
        const char* what;
        const char* stored;
        QStringList captions;
        QStringList cells;
    };
    for (const Case& c : {
             Case{"another order, with a comma at its end",
                  "cameraName,comment,lock,",
                  {"Camera name", "Comment", "Lock"},
                  {"wren_button_edit_camera_name", "wren_cameraInfo_comment", "wren_button_lockStatus_lock"}},
             Case{"unknown fields and a field twice",
                  "lock,nonsense,comment,lock,,cameraName,comment",
                  {"Lock", "Comment", "Camera name"},
                  {"wren_button_lockStatus_lock", "wren_cameraInfo_comment", "wren_button_edit_camera_name"}},
             Case{"one field more",
                  "lock,comment,cameraName,alert",
                  {"Lock", "Comment", "Camera name", "Alert"},
                  {"wren_button_lockStatus_lock", "wren_cameraInfo_comment", "wren_button_edit_camera_name",
                   "wren_alert"}},
         }) {
        SCOPED_TRACE(c.what);
        test.host.prefs().setValue(Order, c.stored);
        EXPECT_NE(page.tick(), QStringList());
        EXPECT_EQ(page.list("probe.captions()"), c.captions);
        EXPECT_EQ(page.list(FirstRow), c.cells);
        EXPECT_EQ(page.tick(), QStringList()) << "one tick was enough";
        EXPECT_EQ(page.tick(), QStringList());
        EXPECT_EQ(page.number("wrentabledialog_column_obj.commentColumnNo"), 1);
    }
}

TEST(PageColumns, AreHiddenByTheirDisplayKeyAndKeepTheirPlace) {
    TestHost test(connected(3));
    test.host.prefs().setValue("wren/column_order/livecontrol", "alert,frameRate,cameraName,lock,sync,trigger");
    test.host.prefs().setValue("wren/display/frameRate", false);
    test.host.prefs().setValue("wren/display/lock", false);
    TablePage page(test, 1);
    EXPECT_EQ(page.list(FirstRow),
              QStringList({"wren_alert", "wren_button_edit_camera_name", "wren_sync", "wren_livecontrol_trigger"}));
    EXPECT_EQ(page.tick(), QStringList()) << "a hidden column is no change of the order";

    test.host.prefs().setValue("wren/display/frameRate", true);
    page.tick();
    EXPECT_EQ(page.list(FirstRow),
              QStringList({"wren_alert", "wren_livecontrol_framerate", "wren_button_edit_camera_name", "wren_sync",
                           "wren_livecontrol_trigger"}));
    EXPECT_EQ(page.text("$('p.wren_livecontrol_framerate[dockey=2]').text()"), "1000 fps");
}

TEST(PageColumns, AreDraggedToAnotherPlace) {
    const char* liveOrder = "wren/column_order/livecontrol";
    TestHost test(connected(3));
    test.host.prefs().setValue(liveOrder, "lock,cameraName,alert,frameRate,nonsense,trigger,resolution");
    test.host.prefs().setValue("wren/display/alert", false);
    TablePage page(test, 1);
    const auto head = [&page](const char* caption) {
        return QString("#grid_wren-livecontrol-list_columns td[col=\"%1\"] .w2ui-col-header")
            .arg(
                page.number(QString("probe.grid().columns.findIndex(column => column.caption === '%1')").arg(caption)));
    };
    const auto dragged = [&](const char* from, const char* to, double share) {
        page.press(head(from));
        // The grid takes the column up when the button has been held for a moment.
        EXPECT_TRUE(page.until("$('body > .w2ui-grid').length === 1"));
        page.move(head(to), share);
        page.run("probe.callsBegin(); return 0");
        page.release();
        EXPECT_EQ(page.number("probe.callsEnd().filter(call => call[0] === 'getRecords').length"), 1);
        EXPECT_TRUE(page.until("$('body > .w2ui-grid').length === 0")) << "what was dragged fades away";
        EXPECT_EQ(page.tick(), QStringList()) << "the stored order is the grid's";
        return test.host.prefs().value(liveOrder).toString();
    };
    page.press(head("Trigger mode"));
    EXPECT_TRUE(page.until("$('body > .w2ui-grid').length === 1"));
    page.release();
    EXPECT_TRUE(page.until("$('body > .w2ui-grid').length === 0"));
    EXPECT_EQ(page.list("probe.captions()").value(0), "Lock") << "a hand that holds still moves nothing";
    EXPECT_EQ(dragged("Trigger mode", "Camera name", 0.2), "lock,trigger,cameraName,alert,frameRate,resolution,")
        << "a hidden column keeps its place; one that has no place gets none";
    EXPECT_EQ(page.list("probe.captions()"),
              QStringList({"Lock", "Trigger mode", "Camera name", "Frame rate", "Resolution"}));
    EXPECT_EQ(page.list(FirstRow),
              QStringList({"wren_button_lockStatus_lock", "wren_livecontrol_trigger", "wren_button_edit_camera_name",
                           "wren_livecontrol_framerate", "wren_livecontrol_resolution"}));
    EXPECT_EQ(page.number("wrentabledialog_column_obj.triggerColumnNo"), 1);
    EXPECT_EQ(page.number("wrentabledialog_column_obj.lowlightColumnNo"), -1);
    EXPECT_EQ(dragged("Lock", "Resolution", 0.9), "trigger,cameraName,alert,frameRate,resolution,lock,");
    EXPECT_EQ(dragged("Lock", "Lock", 0.6), "trigger,cameraName,alert,frameRate,resolution,lock,");
    EXPECT_EQ(commands(test, page, [&] { page.pick("2", "trigger", "1"); }).size(), 1) << "its control works";
}

/// The library goes on from these sizes when an edge is dragged.
TEST(PageColumns, AreAsWideAsTheLibraryMakesThem) {
    const char* compared = R"js((() => {
        const { name, box } = probe.grid();
        viewOf(probe.grid()).placeHandles();
        const sizes = () => JSON.stringify(Array.from(box.querySelectorAll('div, tr:first-child > td, .w2ui-head'))
            .map(element => element.getBoundingClientRect()).map(at => [at.left, at.top, at.width, at.height])
            .concat(['overflowX', 'overflowY'].map(word =>
                document.getElementById(`grid_${name}_records`).style[word])));
        const own = sizes();
        [1, 2].forEach(() => w2obj.grid.prototype.resize.call(probe.grid()));
        return own === sizes() ? '' : `${own}\n${sizes()}`;
    })())js";
    for (const int cameras : {0, 3, 40}) {
        TestHost test(connected(cameras));
        TablePage page(test);
        for (const int tab : {0, 1, 4}) {
            page.show(tab);
            for (const QSize& size : {QSize(1200, 500), QSize(1433, 900), QSize(1900, 1000)}) {
                page.window().resize(size);
                EXPECT_TRUE(page.until(QString("window.innerWidth === %1").arg(size.width())));
                for (const bool shown : {true, false}) {
                    test.host.prefs().setValue("wren/display/alert", shown);
                    page.update();
                    EXPECT_EQ(page.text(compared), "") << cameras << " cameras, tab " << tab << ", " << size.width();
                }
            }
        }
    }
}

TEST(PageColumns, ScrollTogetherWhateverIsScrolled) {
    TestHost test(connected(3));
    TablePage page(test, 1);
    page.run("probe.grid().columns[2].size = '2500px'; viewOf(probe.grid()).measure(); return 0");
    const char* lefts =
        "['records', 'columns', 'summary'].map(part =>"
        " String(document.getElementById(`grid_${probe.grid().name}_${part}`).scrollLeft))";
    EXPECT_EQ(page.list(lefts), QStringList({"0", "0", "0"}));
    for (const char* part : {"summary", "columns", "records"}) {
        for (const int left : {60, 5000}) {
            page.run(QString("document.getElementById(`grid_${probe.grid().name}_%1`).scrollLeft = %2; return 0")
                         .arg(part)
                         .arg(left));
            EXPECT_TRUE(
                page.until(QString("(all => all[0] !== '0' && all.every(left => left === all[0]))(%1)").arg(lefts)))
                << part << page.list(lefts).join(' ').toStdString();
        }
        page.run("probe.grid().box.querySelector('.w2ui-grid-records').scrollLeft = 0; return 0");
        ASSERT_TRUE(page.until(QString("%1.every(left => left === '0')").arg(lefts)));
    }
    page.run("probe.grid().box.querySelector('.w2ui-grid-records').scrollLeft = 60; return 0");
    ASSERT_TRUE(page.until(QString("%1.every(left => left === '60')").arg(lefts)));
    test.host.faults().plant(3, "*", {{}, 0, true});
    page.update();
    EXPECT_EQ(page.number("probe.drawn().length"), 2);
    page.settle();
    QCoreApplication::processEvents();
    EXPECT_EQ(page.list(lefts), QStringList({"60", "60", "60"})) << "a new frame stands where the old one did";
}

TEST(PageColumns, AnEdgeIsLetGoOutsideTheWindowToo) {
    TestHost test(connected(3));
    TablePage page(test, 1);
    page.move("#grid_wren-livecontrol-list_columns .w2ui-head:nth-child(3)");
    page.press("#grid_wren-livecontrol-list_columns .w2ui-resizer[name=\"2\"]");
    EXPECT_TRUE(page.run("probe.grid().resizing === true").toBool());
    page.releaseOutside();
    EXPECT_TRUE(page.run("probe.grid().resizing === undefined").toBool());
}

}  // namespace
