#include "TablePage.h"

#include <QDialog>

namespace {

/// What a user sees of the mode, in one line.
const char* Look = R"js(
    const shown = ['.exec-recording', '.option-recording', '.exec-saving', '#wren_related_settings',
        '#wrenBatchLowlightBlock'].filter(part => $(part).is(':visible'));
    const off = ['#livecontrol_search', '#livecontrol_save_button', '#wrentabledialog_defaultsettings',
        '#recordFilter', '#wrentabledialog_displaySettings'].filter(part => $(part).prop('disabled'));
    const tabs = $('#tabs').tabs('option', 'disabled');
    return ['tab ' + $('#tabs').tabs('option', 'active') + (tabs === true ? ' of none' : ''),
        'rows ' + probe.drawn().length + ($('.w2ui-lock:visible').length > 0 ? ' locked' : ''),
        'page ' + $('body')[0].className, 'shown ' + shown.join(' '), 'off ' + off.join(' ')];
)js";

/// The grid library locks and unlocks a moment later.
const char* Locked = "$('.w2ui-lock:visible').length > 0";
const char* Unlocked = "$('.w2ui-lock:visible').length === 0";

const char* ActiveTab = "$('#tabs').tabs('option', 'active')";

const QString LiveParts =
    QStringLiteral("shown .exec-recording .option-recording #wren_related_settings #wrenBatchLowlightBlock");
const QString MemoryOff =
    QStringLiteral("off #livecontrol_search #livecontrol_save_button #wrentabledialog_defaultsettings");

QStringList live(const char* tab, const char* rows) {
    return {tab, rows, "page ", LiveParts, "off "};
}

TEST(PageModes, FollowTheHost) {
    TestHost test(connected(4));
    TablePage page(test, 1);
    EXPECT_EQ(page.list(Look), live("tab 1", "rows 4"));

    test.host.appStatus().enterMode(zeb::MemoryMode);
    page.settle();
    EXPECT_EQ(page.list(Look),
              QStringList({"tab 5", "rows 4", "page wren-table-color-skyblue", "shown .exec-saving", MemoryOff}));
    test.host.appStatus().enterMode(zeb::FileMode);
    const QStringList file = {"tab 5 of none", "rows 0 locked", "page ", "shown ",
                              MemoryOff + " #recordFilter #wrentabledialog_displaySettings"};
    for (const char* when : {"at once", "and it stays so"}) {
        page.update();
        EXPECT_TRUE(page.until(Locked));
        EXPECT_EQ(page.list(Look), file) << when;
    }

    test.host.appStatus().enterMode(zeb::LiveMode);
    page.settle();
    EXPECT_TRUE(page.until(Unlocked));
    EXPECT_EQ(page.list(Look), live("tab 1", "rows 4")) << "back on the live tab it came from";
}

TEST(PageModes, OnlyAFullUpdateFillsTheGridAfterFileMode) {
    TestHost test(connected(4));
    TablePage page(test);
    test.host.appStatus().enterMode(zeb::FileMode);
    page.settle();
    EXPECT_TRUE(page.until(Locked));
    EXPECT_EQ(page.list(Look).mid(0, 2), QStringList({"tab 0 of none", "rows 0 locked"}));
    test.host.appStatus().enterMode(zeb::LiveMode);
    page.tick();
    EXPECT_FALSE(page.run("wrentabledialog_obj.gridLock").toBool());
    EXPECT_EQ(page.list("probe.drawn()"), QStringList());
    page.settle();
    EXPECT_TRUE(page.until(Unlocked));
    EXPECT_EQ(page.list(Look), live("tab 0", "rows 4"));
}

TEST(PageModes, AreSwitchedByTheTabs) {
    TestHost test(standardRig(2));
    TablePage page(test);
    page.click("a[href=\"#memoryPluginTab\"]");
    EXPECT_TRUE(test.host.isMemoryMode());
    EXPECT_EQ(page.list(Look).first(), "tab 6");
    page.click("a[href=\"#livecontrolTab\"]");
    EXPECT_TRUE(test.host.isLiveMode());
    EXPECT_EQ(page.list(Look).first(), "tab 1");
    test.host.appStatus().enterMode(zeb::MemoryMode);
    page.settle();
    EXPECT_EQ(page.list(Look).first(), "tab 6") << "the last memory tab";
    page.click("a[href=\"#memoryPluginTab\"]");
    EXPECT_EQ(page.text("document.activeElement.tagName"), "BODY") << "no arrow changes tab or mode after a click";
}

TEST(PageModes, TheGridTakesTheRoomThatIsLeft) {
    TestHost test(standardRig(2));
    TablePage page(test);
    // Window less accordion, upper area, margins and the buttons below.
    const QString over = QStringLiteral(
        "window.innerHeight - $('#tabAreaUpperParts').height() - parseInt($('.grid-div')[0].style.height)");
    EXPECT_EQ(page.number(over), 30 + 70 + 90);
    page.click("#accordion h3");
    EXPECT_EQ(page.number(over), 220 + 70 + 90);
    EXPECT_EQ(page.text("$('#wren-recording-container').attr('fixed')"), "true");
    const QSize size = page.window().size();
    page.window().resize(1200, 400);
    EXPECT_TRUE(page.until("$('#wren-recording-container').attr('fixed') === 'false'"))
        << "in a low window the buttons stand below the table";
    page.window().resize(size);
    EXPECT_TRUE(page.until("$('#wren-recording-container').attr('fixed') === 'true'"));
    test.host.appStatus().enterMode(zeb::MemoryMode);
    page.settle();
    EXPECT_EQ(page.number(over), 220 + 70 + 60);
    EXPECT_EQ(page.text("$('#wren-save-container').attr('fixed')"), "true");
}

TEST(PageModes, NoHiddenTabComesToTheFront) {
    TestHost test(standardRig(4));
    TablePage page(test, 6);
    page.show(2);
    for (const char* key : {"wren/display/syncTab", "wren/display/memoryPluginTab"}) {
        test.host.prefs().setValue(QString::fromLatin1(key), false);
    }
    page.tick();
    EXPECT_EQ(page.number(ActiveTab), 0) << "its header has gone";
    test.host.appStatus().enterMode(zeb::MemoryMode);
    page.settle();
    EXPECT_EQ(page.number(ActiveTab), 5) << "the tab that was in front last is hidden";
}

}  // namespace
