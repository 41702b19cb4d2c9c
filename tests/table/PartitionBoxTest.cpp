#include "GUI_SelectBox.h"
#include "GUI_WebView.h"
#include "GUI_WrenTableDialog.h"
#include "HostPages.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "PLG_wren.h"
#include "PluginSlot.h"
#include "TableFixture.h"

#include <QSignalSpy>
#include <QTest>
#include <QWebFrame>
#include <QWebPage>

namespace {

/// The table with its list of partitions; camera 1 is the current one.
class PartitionBoxTest : public TableFixture {
protected:
    static void SetUpTestSuite() { initHostPages(); }

    PartitionBoxTest() {
        plugin.setHost(&host);
        connectAll();
        change(1, {{"partitions", 4}, {"partition", 2}, {"partitionNames", QStringList{"Warm-up", "Shot"}}});
        host.docManager().setSelectedDocs({1}, 0);
        slot.open();
        dialog = static_cast<GUI_WrenTableDialog*>(plugin.getDialog(false));
        table = static_cast<JS_Mediator_WrenTableDialog*>(dialog->getBridge());
        box = dialog->findChild<GUI_SelectBox*>();
        view = box->findChild<GUI_WebView*>();
        EXPECT_TRUE(QSignalSpy(view, &QWebView::loadFinished).wait());
        host.docManager().setSelectedDocs({1}, 0);
    }
    ~PartitionBoxTest() override {
        host.flags().set("IsApplicationClosing", true);
        slot.close();
    }

    QVariant eval(const QString& script) const { return view->page()->mainFrame()->evaluateJavaScript(script); }

    PLG_wren plugin;
    PluginSlot slot{host, plugin};
    GUI_WrenTableDialog* dialog = nullptr;
    JS_Mediator_WrenTableDialog* table = nullptr;
    GUI_SelectBox* box = nullptr;
    GUI_WebView* view = nullptr;
};

TEST_F(PartitionBoxTest, theListStaysOverItsPlaceAndGoesWithTheTable) {
    table->showLivePartition(30, 400, 120, 24);
    dialog->setGeometry(260, 140, 1300, 620);
    EXPECT_EQ(box->geometry(), QRect(260 + 30, 140 + 400 - 6 * 24, 120, 6 * 24));
    EXPECT_TRUE(box->isVisible());
    calls();
    table->hideSelectBox();
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(calls(), QStringList()) << "the table hides its own box, not the host's";

    table->showLivePartition(30, 400, 120, 24);
    EXPECT_TRUE(dialog->close());
    EXPECT_FALSE(box->isVisible());
    slot.open();
    EXPECT_FALSE(box->isVisible()) << "a table that opens again has no list";
    table->showLivePartition(30, 400, 120, 24);
    EXPECT_TRUE(box->isVisible());
}

TEST_F(PartitionBoxTest, aChoiceShowsInTheTableAtTheNextUpdate) {
    table->showLivePartition(30, 400, 120, 24);
    QSignalSpy updates(table, &JS_Mediator::update);
    eval("items.slotNotifyPartition('3')");
    EXPECT_TRUE(updates.wait());
    EXPECT_EQ(table->getCurrentPartition(), 3U);
    EXPECT_EQ(table->getCurrentPartitionName(), "Partition 3");
    EXPECT_EQ(eval("document.querySelectorAll('#items a').length").toInt(), 6);
    change(1, {{"connected", false}});
    EXPECT_EQ(table->getCurrentPartition(), 0U);
    EXPECT_EQ(table->getCurrentPartitionName(), "");
    EXPECT_EQ(desk.texts(), QStringList());
    host.updates().request();
    EXPECT_TRUE(QTest::qWaitFor([this] { return eval("document.querySelectorAll('#items a').length") == 0; }));
}

TEST_F(PartitionBoxTest, aQuestionOfTheTableHoldsAChoiceBackAndTheOtherWayRound) {
    desk.whileStanding = [this] { eval("items.slotNotifyPartition('3')"); };
    table->confirm("Sure?");
    EXPECT_EQ(stateOf(1, "partition").toInt(), 2);

    host.faults().plant(1, "setPartition", {"no answer", 0, false});
    desk.whileStanding = [this] {
        EXPECT_TRUE(table->isInCall());
        table->setParamLock({1}, true);
    };
    eval("items.slotNotifyPartition('3')");
    EXPECT_EQ(desk.shown.size(), 2);
    EXPECT_FALSE(stateOf(1, "locked").toBool());
    EXPECT_FALSE(table->isInCall());
}

}  // namespace
