#include "TablePage.h"

#include <QDialog>

namespace {

/// The tab in front, and the rows.
const char* Look = R"js(
    return ['tab ' + $('#tabs').tabs('option', 'active') + ($('#tabs').tabs('option', 'disabled') === true ? ' of none' : ''),
        'rows ' + probe.drawn().length + ($('.w2ui-lock:visible').length > 0 ? ' locked' : '')];
)js";

/// The grid library locks and unlocks a moment later.
const char* Locked = "$('.w2ui-lock:visible').length > 0";
const char* Unlocked = "$('.w2ui-lock:visible').length === 0";

const char* ActiveTab = "$('#tabs').tabs('option', 'active')";

TEST(PageModes, FollowTheHost) {
    TestHost test(connected(4));
    TablePage page(test, 1);
    EXPECT_EQ(page.list(Look), QStringList({"tab 1", "rows 4"}));

    page.enter(zeb::MemoryMode);
    EXPECT_EQ(page.list(Look), QStringList({"tab 5", "rows 4"}));
    test.host.appStatus().enterMode(zeb::FileMode);
    for (const char* when : {"at once", "and it stays so"}) {
        page.update();
        EXPECT_TRUE(page.until(Locked));
        EXPECT_EQ(page.list(Look), QStringList({"tab 5 of none", "rows 0 locked"})) << when;
    }

    page.enter(zeb::LiveMode);
    EXPECT_TRUE(page.until(Unlocked));
    EXPECT_EQ(page.list(Look), QStringList({"tab 1", "rows 4"})) << "back on the live tab it came from";
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
    page.enter(zeb::MemoryMode);
    EXPECT_EQ(page.list(Look).first(), "tab 6") << "the last memory tab";
    page.click("a[href=\"#memoryPluginTab\"]");
    EXPECT_TRUE(page.run("document.activeElement === keyboardHome.grid()").toBool())
        << "no arrow changes tab or mode after a click";
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
    page.enter(zeb::MemoryMode);
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
    EXPECT_EQ(page.number(ActiveTab), 0);
    EXPECT_FALSE(page.run("$('a[href=\"#syncTab\"]').is(':visible')").toBool()) << "its header has gone";
    page.enter(zeb::MemoryMode);
    EXPECT_EQ(page.number(ActiveTab), 5) << "the tab that was in front last is hidden";
}

}  // namespace
