#include "HostPages.h"
#include "TablePage.h"
#include "Until.h"

#include <QDialog>
#include <QWebFrame>
#include <QWebView>

// The page on its way to the screen: the rows first, what makes it usable behind them.

namespace {

TEST(PageOpening, ShowsTheTabOfTheMode) {
    const struct {
        zeb::OperatingMode mode;
        int tab;
        int rows;
        bool locked;
    } cases[] = {{zeb::LiveMode, 0, 4, false}, {zeb::MemoryMode, 5, 4, false}, {zeb::FileMode, 0, 0, true}};
    for (const auto& each : cases) {
        TestHost test(connected(4));
        test.host.appStatus().enterMode(each.mode);
        TablePage page(test, each.tab);
        EXPECT_EQ(page.number("$('#tabs').tabs('option', 'active')"), each.tab);
        EXPECT_EQ(page.list("$('.ui-tabs-panel:visible').get().map(panel => panel.id)").size(), 1);
        EXPECT_EQ(page.number("probe.drawn().length"), each.rows) << each.tab;
        EXPECT_EQ(page.run("wrentabledialog_obj.gridLock").toBool(), each.locked);
        EXPECT_EQ(page.run("$('#tabs').tabs('option', 'disabled')").toBool(), each.locked);
        page.enter(zeb::LiveMode);
        EXPECT_EQ(page.number("$('#tabs').tabs('option', 'active')"), 0) << "and follows the host from there";
        EXPECT_EQ(page.number("probe.drawn().length"), 4);
    }
}

TEST(PageOpening, ComesUpWhateverFails) {
    for (const char* operation : {"*", "isConnected", "isSelected", "getCameraName", "isParamLocked", "getAlerts",
                                  "isLowLightMode", "getShutterSpeedEntries"}) {
        TestHost test(connected(3));
        test.host.faults().plant(2, operation, {"no answer"});
        TablePage page(test);
        EXPECT_EQ(page.number("probe.drawn().length"), 3) << operation;
        EXPECT_EQ(page.number("$('#tabs .ui-tabs-active').length"), 1) << operation;
        page.show(1);
        EXPECT_GT(page.number("$('tr[recid] .wren_livecontrol_framerate.SelectBox').length"), 2) << operation;
        test.host.faults().clear();
        for (const QString& text : test.desk.take()) {
            EXPECT_TRUE(text.contains("Camera 2")) << text.toStdString();
        }
    }
}

TEST(PageOpening, FollowsAModeThatChangesMeanwhile) {
    initHostPages();
    TestHost test(connected(64));
    const PluginLoader loader(QStringLiteral(WREN_LIBRARY), test.host);
    PluginSlot slot(test.host, loader.plugin());
    slot.open();
    auto* page = loader.plugin().getDialog(false)->findChild<QWebView*>()->page()->mainFrame();
    const auto is = [page](const char* script) { return page->evaluateJavaScript(script).toBool(); };
    EXPECT_TRUE(
        until([&] { return is("window.wrentabledialog_obj !== undefined && wrentabledialog_obj.initialize"); }));
    const char* rows = "viewAt(wrentabledialog_obj.activeTab()).rows.length";
    EXPECT_TRUE(until([&] { return page->evaluateJavaScript(rows).toInt() > 0; }));
    const int first = page->evaluateJavaScript(rows).toInt();
    EXPECT_TRUE(is("wrentabledialog_obj.initialize && !wrentabledialog_obj.tabsExist"));
    EXPECT_TRUE(
        is("['mousedown', 'click'].every(type => !document.getElementById('timeline_rec_exec')"
           ".dispatchEvent(new MouseEvent(type, { bubbles: true, cancelable: true })))"))
        << "a press that comes before its listener is not half done";
    test.host.appStatus().enterMode(zeb::MemoryMode);
    EXPECT_TRUE(until([&] { return is("!wrentabledialog_obj.initialize"); }));
    EXPECT_GE(page->evaluateJavaScript(rows).toInt(), first + 2 * 4) << "those beyond the edges come behind";
    EXPECT_TRUE(is("wrentabledialog_obj.activeTab() === 5"));
    test.host.flags().set("IsApplicationClosing", true);
    slot.close();
    test.host.flags().set("IsApplicationClosing", false);
}

TEST(PageOpening, MayBeCutOffAtEachTurn) {
    initHostPages();
    TablePage::watchErrors();
    TestHost test(connected(4));
    bool stands = false;
    for (int turns = 0; !stands; ++turns) {
        const PluginLoader loader(QStringLiteral(WREN_LIBRARY), test.host);
        PluginSlot slot(test.host, loader.plugin());
        slot.open();
        for (int turn = 0; turn < turns; ++turn) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1);
        }
        const auto* view = loader.plugin().getDialog(false)->findChild<QWebView*>();
        stands = view->page()->mainFrame()->evaluateJavaScript("wrentabledialog_obj.initialize === false").toBool();
        test.host.flags().set("IsApplicationClosing", true);
        slot.close();
        test.host.flags().set("IsApplicationClosing", false);
        EXPECT_TRUE(until([&] { return !loader.plugin().getDialog(false)->isVisible(); })) << turns;
    }
    EXPECT_EQ(test.desk.texts(), QStringList());
    qInstallMessageHandler(nullptr);
}

}  // namespace
