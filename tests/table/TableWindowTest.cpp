#include "GUI_WrenTableDialog.h"
#include "PluginSlot.h"
#include "TableFixture.h"

#include <QSignalSpy>
#include <QTest>

namespace {

class TableWindowTest : public BridgeFixture {
protected:
    TableWindowTest() {
        host.setPrefInt("wren/table/interval", 1);
        mainWindow.setGeometry(0, 0, 800, 600);
        host.setMainWindow(&mainWindow);
    }

    GUI_WrenTableDialog& open() {
        slot.open();
        auto& dialog = static_cast<GUI_WrenTableDialog&>(*plugin.getDialog(false));
        // The answers of the page.
        auto* table = static_cast<JS_Mediator_WrenTableDialog*>(dialog.getBridge());
        QObject::connect(table, &JS_Mediator::open, table, &JS_Mediator_WrenTableDialog::onOpen, Qt::UniqueConnection);
        QObject::connect(table, &JS_Mediator::close, table, &JS_Mediator_WrenTableDialog::onClose,
                         Qt::UniqueConnection);
        return dialog;
    }

    QWidget mainWindow;
    PluginSlot slot{host, plugin};
};

TEST_F(TableWindowTest, ADeclinedCloseLeavesTheTableAsItIs) {
    GUI_WrenTableDialog& dialog = open();
    EXPECT_EQ(dialog.windowTitle(), "WREN");
    EXPECT_EQ(dialog.geometry(), QRect(100, 80, 1200, 600));
    auto& table = static_cast<JS_Mediator_WrenTableDialog&>(*dialog.getBridge());
    QSignalSpy closes(&table, &JS_Mediator::close);
    dialog.setGeometry(300, 200, 1300, 500);
    for (const bool ticking : {true, false}) {
        ticking ? table.startAutoUpdate() : table.stopAutoUpdate();
        desk.answers = {{false, false}};
        desk.whileStanding = [&] { table.connect({1}, true); };
        EXPECT_FALSE(dialog.close());
        EXPECT_EQ(desk.take(), QStringList{"Quit WREN?"});
        EXPECT_EQ(table.isTicking(), ticking) << "a drag that had stopped the ticks goes on";
    }
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(closes.count(), 0);
    EXPECT_EQ(host.getPrefInt("wren/table/x"), 300) << "the place is stored before the question";
    EXPECT_TRUE(host.getPrefBool("recording/RecAllConnectedCamera"));
    EXPECT_FALSE(stateOf(1, "connected").toBool()) << "no camera is changed behind the question";
}

TEST_F(TableWindowTest, AClosingHostAsksNothing) {
    GUI_WrenTableDialog& dialog = open();
    host.flags().set("IsApplicationClosing", true);
    host.flags().set("IsWindowStateSaveSuppressed", true);
    calls();
    EXPECT_TRUE(dialog.close());
    EXPECT_EQ(desk.texts(), QStringList());
    EXPECT_TRUE(host.getPrefBool("wren/ready"));
    EXPECT_TRUE(calls().filter("wren/table/x").isEmpty());
}

TEST_F(TableWindowTest, AHostThatBeginsToCloseUnderTheQuestionWins) {
    GUI_WrenTableDialog& dialog = open();
    desk.answers = {{false, false}};
    desk.whileStanding = [this] { host.flags().set("IsApplicationClosing", true); };
    EXPECT_TRUE(dialog.close());
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(host.getPrefBool("wren/ready"));
}

TEST_F(TableWindowTest, ACloseUnderABoxIsForgottenWithTheTable) {
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

}  // namespace
