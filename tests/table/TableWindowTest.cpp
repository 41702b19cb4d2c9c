#include "GUI_WrenTableDialog.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "PLG_wren.h"
#include "PluginSlot.h"
#include "TableFixture.h"

#include <QSignalSpy>
#include <QTest>

namespace {

class TableWindowTest : public TableFixture {
protected:
    TableWindowTest() {
        host.setPrefInt("wren/table/interval", 1);
        plugin.setHost(&host);
        mainWindow.setGeometry(0, 0, 800, 600);
        host.setMainWindow(&mainWindow);
    }

    GUI_WrenTableDialog& open() {
        slot.open();
        auto& dialog = static_cast<GUI_WrenTableDialog&>(*plugin.getDialog(false));
        // The answers of the page.
        JS_Mediator_Dialog* bridge = dialog.getBridge();
        auto* table = static_cast<JS_Mediator_WrenTableDialog*>(bridge);
        QObject::connect(bridge, &JS_Mediator::open, table, &JS_Mediator_WrenTableDialog::onOpen, Qt::UniqueConnection);
        QObject::connect(bridge, &JS_Mediator::close, table, &JS_Mediator_WrenTableDialog::onClose,
                         Qt::UniqueConnection);
        return dialog;
    }

    QWidget mainWindow;
    PLG_wren plugin;
    PluginSlot slot{host, plugin};
};

TEST_F(TableWindowTest, aDeclinedCloseLeavesTheTableAsItIs) {
    GUI_WrenTableDialog& dialog = open();
    EXPECT_EQ(dialog.windowTitle(), "WREN");
    EXPECT_EQ(dialog.geometry(), QRect(100, 80, 1200, 600));
    auto& bridge = static_cast<JS_Mediator_WrenTableDialog&>(*dialog.getBridge());
    QSignalSpy closes(&bridge, &JS_Mediator::close);
    dialog.setGeometry(300, 200, 1300, 500);
    bridge.startAutoUpdate();

    desk.answers = {{false, false}};
    EXPECT_FALSE(dialog.close());
    EXPECT_EQ(desk.texts(), QStringList{"Quit WREN?"});
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(closes.count(), 0);
    EXPECT_EQ(host.getPrefInt("wren/table/x"), 300) << "the place is stored before the question";
    EXPECT_TRUE(host.getPrefBool("recording/RecAllConnectedCamera"));
    EXPECT_TRUE(QSignalSpy(&bridge, &JS_Mediator_WrenTableDialog::autoUpdate).wait());

    bridge.stopAutoUpdate();
    desk.answers = {{false, false}};
    EXPECT_FALSE(dialog.close());
    EXPECT_FALSE(bridge.isTicking()) << "a drag that had stopped the ticks goes on";
}

TEST_F(TableWindowTest, anAcceptedCloseStoresTheWindowThenEndsTheTable) {
    GUI_WrenTableDialog& dialog = open();
    QSignalSpy closes(dialog.getBridge(), &JS_Mediator::close);
    dialog.setGeometry(300, 200, 1300, 500);
    calls();
    EXPECT_TRUE(dialog.close());
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(closes.count(), 1);
    const QStringList done = calls();
    const QStringList stored = done.filter("setPref").mid(0, 7);
    EXPECT_EQ(
        stored,
        (QStringList{R"(ZebHost::setPrefInt ["wren/table/x",300])", R"(ZebHost::setPrefInt ["wren/table/y",200])",
                     R"(ZebHost::setPrefInt ["wren/table/w",1300])", R"(ZebHost::setPrefInt ["wren/table/h",500])",
                     R"(ZebHost::setPrefInt ["wren/table/scrno",0])", R"(ZebHost::setPrefInt ["wren/table/stat",0])",
                     R"(ZebHost::setPrefBool ["wren/ready",false])"}));
    EXPECT_TRUE(done.contains(R"(ZebAppStatus::closePlugin ["wren"])"));
    EXPECT_FALSE(host.getPrefBool("recording/RecAllConnectedCamera"));
}

TEST_F(TableWindowTest, aClosingHostAsksNothing) {
    GUI_WrenTableDialog& dialog = open();
    host.flags().set("IsApplicationClosing", true);
    host.flags().set("IsWindowStateSaveSuppressed", true);
    calls();
    EXPECT_TRUE(dialog.close());
    EXPECT_EQ(desk.texts(), QStringList());
    EXPECT_TRUE(host.getPrefBool("wren/ready"));
    EXPECT_TRUE(calls().filter("wren/table/x").isEmpty());
}

TEST_F(TableWindowTest, aHostThatBeginsToCloseUnderTheQuestionWins) {
    GUI_WrenTableDialog& dialog = open();
    desk.answers = {{false, false}};
    desk.whileStanding = [this] { host.flags().set("IsApplicationClosing", true); };
    EXPECT_TRUE(dialog.close());
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(host.getPrefBool("wren/ready"));
}

TEST_F(TableWindowTest, aCloseUnderABoxIsForgottenWithTheTable) {
    GUI_WrenTableDialog& dialog = open();
    desk.whileStanding = [&] {
        dialog.close();
        plugin.hideDialog();
    };
    dialog.getBridge()->info("The host hides the table meanwhile");
    bool done = false;
    dialog.getBridge()->afterCalls([&done] { done = true; });
    EXPECT_TRUE(QTest::qWaitFor([&done] { return done; }));
    EXPECT_EQ(desk.texts().count("Quit WREN?"), 0) << "nobody is asked about a table that is hidden";
}

TEST_F(TableWindowTest, noCameraIsChangedBehindTheQuestion) {
    GUI_WrenTableDialog& dialog = open();
    auto& bridge = static_cast<JS_Mediator_WrenTableDialog&>(*dialog.getBridge());
    desk.answers = {{false, false}};
    desk.whileStanding = [&] { bridge.connect({1}, true); };
    dialog.close();
    EXPECT_FALSE(stateOf(1, "connected").toBool());
}

}  // namespace
