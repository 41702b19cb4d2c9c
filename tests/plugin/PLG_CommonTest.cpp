#include "TestPlugin.h"

#include <QApplication>
#include <QSignalSpy>

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(PLG_CommonTest, MakesItsDialogOnceAndWhenAsked) {
    TestPlugin plugin(&host);
    EXPECT_EQ(plugin.getDialog(false), nullptr);
    plugin.showDialog();
    plugin.hideDialog();
    plugin.closeDialog();
    plugin.updateDialog(zeb::FileMode);
    EXPECT_EQ(plugin.made, 0);
    plugin.onCreate = [] { throw std::runtime_error("no camera answers"); };
    EXPECT_THROW(plugin.getDialog(true), std::runtime_error);

    plugin.onCreate = [&plugin] { EXPECT_EQ(plugin.getDialog(true), nullptr) << "a click while the dialog is made"; };
    QDialog* dialog = plugin.getDialog(true);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(plugin.getDialog(true), dialog);
    EXPECT_EQ(plugin.getDialog(false), dialog);
    EXPECT_EQ(plugin.made, 2) << "the first has failed";
    EXPECT_FALSE(plugin.isDialogVisible());
}

TEST_F(PLG_CommonTest, TellsThePageOnlyOfARealOpening) {
    TestPlugin plugin(&host);
    auto* dialog = static_cast<GUI_ModelessPatternDialog*>(plugin.getDialog(true));
    QSignalSpy opened(dialog->getBridge(), &JS_Mediator::open);

    plugin.showDialog();
    EXPECT_EQ(opened.count(), 1);
    EXPECT_TRUE(plugin.isDialogVisible());
    plugin.showDialog();
    EXPECT_EQ(opened.count(), 1) << "it was visible";
    dialog->showMinimized();
    plugin.showDialog();
    EXPECT_EQ(opened.count(), 2) << "it was minimised";
    EXPECT_FALSE(dialog->isMinimized());
    plugin.hideDialog();
    plugin.showDialog();
    EXPECT_EQ(opened.count(), 3) << "it was hidden";
}

TEST_F(PLG_CommonTest, RestartsTheLiveViewAndItsQuickToolOnOpening) {
    TestPlugin plugin(&host);
    plugin.m_pauseLiveForDialog = true;
    plugin.m_quickKind = 1;
    plugin.getDialog(true);
    taken();
    plugin.showDialog();
    EXPECT_THAT(taken(), ElementsAre("pauseLive 0", "restartLiveAfterTool 0", "refresh 1 true", "resumeLive",
                                     "setActiveQuickTool", "setQuickTool tool true"));
}

/// With what a closed dialog asks of the host then.
std::vector<std::string> andClosing(std::vector<std::string> calls) {
    calls.insert(calls.end(),
                 {"deterUpdateUI true", "closePlugin tool", "deterUpdateUI false", "updateUI 4294967295 true"});
    return calls;
}

TEST_F(PLG_CommonTest, ClosesInOrder) {
    TestPlugin plugin(&host);
    plugin.m_pauseLiveForDialog = true;
    auto* dialog = plugin.shownDialog();
    bool visibleThen = true;
    plugin.onDeactivate = [&] { visibleThen = dialog->isVisible(); };
    taken();

    plugin.slotModelessPatternDialogClosed();
    EXPECT_EQ(taken(), andClosing({"pauseLive 0", "restartLiveAfterEnd 0", "refresh 1 true", "resumeLive"}));
    EXPECT_FALSE(visibleThen);
    EXPECT_EQ(plugin.getDialog(false), dialog);

    plugin.m_pauseLiveForDialog = false;
    plugin.showDialog();
    fail("closePlugin");
    taken();
    EXPECT_NO_THROW(plugin.slotModelessPatternDialogClosed());
    auto expected = andClosing({});
    expected.insert(expected.end(), {"critical: \"no answer\"", "error <no answer>"});
    EXPECT_EQ(taken(), expected) << "the deterrence ends when closing fails";
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(PLG_CommonTest, ClosesByTheWindowToo) {
    TestPlugin plugin(&host);
    auto* dialog = plugin.shownDialog();
    dialog->setPluginCloseEnabled(false);
    taken();
    plugin.closeDialog();
    EXPECT_THAT(taken(), ElementsAre("notifyPluginClosed")) << "the plug-in stays open";

    dialog->setPluginCloseEnabled(true);
    plugin.showDialog();
    taken();
    plugin.m_buttonType = 6;
    plugin.closeByType();
    EXPECT_EQ(taken(), andClosing({"notifyPluginClosed"}));
    EXPECT_FALSE(plugin.isDialogVisible());
}

TEST_F(PLG_CommonTest, UpdatesAVisibleDialogAndClosesItInAForeignMode) {
    TestPlugin plugin(&host);
    plugin.m_modeMask = 3;
    auto* dialog = plugin.shownDialog();
    QSignalSpy updated(dialog->getBridge(), &JS_Mediator::update);

    plugin.updateDialog(zeb::MemoryMode);
    EXPECT_EQ(updated.count(), 1);
    plugin.setCloseOnModeChange(false);
    plugin.updateDialog(zeb::FileMode);
    EXPECT_TRUE(plugin.isDialogVisible());
    plugin.setCloseOnModeChange(true);
    plugin.updateDialog(zeb::FileMode);
    EXPECT_FALSE(plugin.isDialogVisible());
    EXPECT_EQ(updated.count(), 3);
    plugin.updateDialog(zeb::LiveMode);
    EXPECT_EQ(updated.count(), 3) << "a hidden dialog is not updated";
}

TEST_F(PLG_CommonTest, MayGoAtAnUpdateOfItsPage) {
    QPointer<TestPlugin> plugin = new TestPlugin(&host);
    QObject::connect(plugin->shownDialog()->getBridge(), &JS_Mediator::update, [&plugin] { delete plugin; });
    plugin->updateDialog(zeb::LiveMode);
    EXPECT_FALSE(plugin);
    EXPECT_THAT(QApplication::topLevelWidgets(), IsEmpty());
}

TEST_F(PLG_CommonTest, StandsPressedByItsType) {
    TestPlugin plugin(&host);
    TestPlugin other(&host);
    const struct {
        const char* sentence;
        int type;
        bool pressed;
        std::function<void()> arrange;
    } rows[] = {
        {"type 1 always", 1, true, [] {}},
        {"type 2 not unless the document says so", 2, false, [] {}},
        {"type 3 when the document says so", 3, true, [&] { host.docManager().toolSelect("tool", true); }},
        {"type 4 not without a current plug-in", 4, false, [] {}},
        {"type 4 while it is the current plug-in", 4, true, [&] { host.appStatus().setCurrentPlugin(&other); }},
        {"type 4 not while another is", 4, false, [&] { other.m_name = QStringLiteral("other"); }},
        {"type 6 not while it has no dialog", 6, false, [] {}},
        {"type 6 while its dialog is visible", 6, true, [&] { plugin.shownDialog(); }},
        {"type 6 not once it is hidden", 6, false, [&] { plugin.hideDialog(); }},
        {"type 1 not in a foreign mode", 1, false, [&] { plugin.m_modeMask = 6; }},
    };
    for (const auto& row : rows) {
        plugin.m_buttonType = row.type;
        row.arrange();
        EXPECT_EQ(plugin.isChecked(doc(1), 0), row.pressed) << row.sentence;
    }
    plugin.m_modeMask = 7;
    EXPECT_FALSE(plugin.isChecked(nullptr, 0));
}

TEST_F(PLG_CommonTest, IsAvailableInTheModesOfItsMask) {
    TestPlugin plugin(&host);
    plugin.m_modeMask = 5;
    std::vector<bool> available;
    for (int mode = -1; mode <= 3; ++mode) {
        available.push_back(plugin.isAvailableInMode(mode));
    }
    EXPECT_THAT(available, ElementsAre(false, true, false, true, false));

    plugin.setOptionForMode(true);
    host.appStatus().enterMode(zeb::FileMode);
    EXPECT_FALSE(plugin.getOptionForMode());
    host.appStatus().enterMode(zeb::MemoryMode);
    EXPECT_TRUE(plugin.getOptionForMode());
}

TEST_F(PLG_CommonTest, WarnsOfAPageThatIsNotThere) {
    TestPlugin plugin(&host);
    EXPECT_EQ(plugin.getPageHtml(), QString());
    EXPECT_THAT(taken(), ElementsAre("warning: Not Found \":/tool.html\""));
}
