#include "TablePage.h"

#include <gmock/gmock.h>

namespace {

const char* Order = "wren/column_order/cameraInfo";
const char* FirstRow = "probe.cells(probe.drawn()[0])";

TEST(PageColumns, FollowAnOrderThatWasStoredBehindThePage) {
    TestHost test(Rig::standard(3));
    connectCameras(test, 1, 3);
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
    TestHost test(Rig::standard(3));
    connectCameras(test, 1, 3);
    test.host.prefs().setValue("wren/column_order/livecontrol", "alert,frameRate,cameraName,lock,sync,trigger");
    test.host.prefs().setValue("wren/display/frameRate", false);
    test.host.prefs().setValue("wren/display/lock", false);
    TablePage page(test, 1);
    EXPECT_EQ(page.list(FirstRow),
              QStringList({"wren_alert", "wren_button_edit_camera_name", "wren_sync", "wren_livecontrol_trigger"}));
    EXPECT_EQ(page.tick(), QStringList()) << "a hidden column is no change of the order";

    test.host.prefs().setValue("wren/display/frameRate", true);
    page.run("wrentabledialog_obj.refreshAllControls()");
    EXPECT_EQ(page.list(FirstRow),
              QStringList({"wren_alert", "wren_livecontrol_framerate", "wren_button_edit_camera_name", "wren_sync",
                           "wren_livecontrol_trigger"}));
    EXPECT_EQ(page.text("$('p.wren_livecontrol_framerate[dockey=2]').text()"), "1000 fps");
}

TEST(PageColumns, ATabThatIsHiddenIsLeft) {
    TestHost test(Rig::standard(1));
    TablePage page(test, 2);
    test.host.prefs().setValue("wren/display/syncTab", false);
    page.run("wrentabledialog_obj.refreshAllControls()");
    EXPECT_EQ(page.number("$('#tabs').tabs('option', 'active')"), 0);
    EXPECT_FALSE(page.run("$('a[href=\"#syncTab\"]').is(':visible')").toBool());
}

}  // namespace
