#include "PLG_Common.h"

#include "GUI_ModelessPatternDialog.h"
#include "JS_Mediator_ModelessPatternDialog.h"
#include "PluginDoc.h"
#include "PluginHost.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalSpy>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A plug-in of which a test chooses what it is.
class TestPlugin : public PLG_Common {
public:
    using PLG_Common::m_attributeL;
    using PLG_Common::m_buttonType;
    using PLG_Common::m_closeOnModeChange;
    using PLG_Common::m_modeMask;
    using PLG_Common::m_name;
    using PLG_Common::m_pauseLiveForDialog;
    using PLG_Common::m_quickKind;
    using PLG_Common::m_rules;
    using PLG_Common::m_selectKind;
    using PLG_Common::m_toolActive;
    using PLG_Common::m_toolKind;

    explicit TestPlugin(ZebHost* host) {
        setHost(host);
        m_name = QStringLiteral("tool");
    }

    int made = 0;
    std::function<void()> onCreate = [] {};

    QDialog* createDialog(bool) override {
        ++made;
        ZebHost* host = m_host;
        onCreate();
        auto* bridge = new JS_Mediator_ModelessPatternDialog(host, QStringLiteral("page"), this);
        return new GUI_ModelessPatternDialog(host, QStringLiteral("Tool"), QString(), bridge, this);
    }

    GUI_ModelessPatternDialog* shownDialog() {
        auto* dialog = static_cast<GUI_ModelessPatternDialog*>(getDialog(true));
        showDialog();
        return dialog;
    }
};

class PLG_CommonTest : public testing::Test {
protected:
    PLG_CommonTest() {
        host.docs[1] = &doc;
        host.connectedKeys = {1};
    }

    /// What the host was asked, in order; texts for a readable difference.
    std::vector<std::string> taken() {
        std::vector<std::string> entries;
        for (const QString& entry : journal.take())
            if (!entry.startsWith(QLatin1String("info: ")) && entry != QLatin1String("notifyPluginShown"))
                entries.push_back(entry.toStdString());
        return entries;
    }

    PluginHost host;
    PluginDoc doc{1};
    Journal journal;
};

}  // namespace

TEST_F(PLG_CommonTest, makesItsDialogOnceAndWhenAsked) {
    TestPlugin plugin(&host);
    EXPECT_EQ(plugin.getDialog(false), nullptr);
    plugin.showDialog();
    plugin.hideDialog();
    plugin.closeDialog();
    plugin.updateDialog(zeb::FileMode);
    EXPECT_EQ(plugin.made, 0);

    plugin.onCreate = [&plugin] { EXPECT_EQ(plugin.getDialog(true), nullptr) << "a click while the dialog is made"; };
    QDialog* dialog = plugin.getDialog(true);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(plugin.getDialog(true), dialog);
    EXPECT_EQ(plugin.getDialog(false), dialog);
    EXPECT_EQ(plugin.made, 1);
    EXPECT_FALSE(plugin.isDialogVisible());
}

TEST_F(PLG_CommonTest, canMakeItsDialogAfterAFailure) {
    TestPlugin plugin(&host);
    plugin.onCreate = [] { throw std::runtime_error("no camera answers"); };
    EXPECT_THROW(plugin.getDialog(true), std::runtime_error);
    plugin.onCreate = [] {};
    EXPECT_NE(plugin.getDialog(true), nullptr);
}

TEST_F(PLG_CommonTest, tellsThePageOnlyOfARealOpening) {
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

TEST_F(PLG_CommonTest, restartsTheLiveViewAndItsQuickToolOnOpening) {
    TestPlugin plugin(&host);
    plugin.m_pauseLiveForDialog = true;
    plugin.m_quickKind = 1;
    plugin.getDialog(true);
    taken();
    plugin.showDialog();
    EXPECT_THAT(taken(), ElementsAre("pauseLive", "restartLiveAfterTool", "refresh 1", "resumeLive",
                                     "setActiveQuickTool", "setQuickTool tool true"));
}

TEST_F(PLG_CommonTest, closesInOrder) {
    TestPlugin plugin(&host);
    plugin.m_pauseLiveForDialog = true;
    auto* dialog = plugin.shownDialog();
    bool visibleThen = true;
    host.onClosePlugin = [&] { visibleThen = dialog->isVisible(); };
    taken();

    plugin.slotModelessPatternDialogClosed();
    EXPECT_THAT(taken(),
                ElementsAre("pauseLive", "restartLiveAfterEnd", "refresh 1", "resumeLive", "deterUpdateUI true",
                            "closePlugin tool", "deterUpdateUI false", "updateUI 4294967295"));
    EXPECT_FALSE(visibleThen);
    EXPECT_EQ(plugin.getDialog(false), dialog);
}

TEST_F(PLG_CommonTest, endsTheDeterrenceWhenClosingFails) {
    TestPlugin plugin(&host);
    auto* dialog = plugin.shownDialog();
    host.failing = QStringLiteral("closePlugin");
    taken();
    EXPECT_NO_THROW(plugin.slotModelessPatternDialogClosed());
    EXPECT_THAT(taken(), ElementsAre("deterUpdateUI true", "closePlugin tool", "deterUpdateUI false",
                                     "updateUI 4294967295", "errorHandler closePlugin"));
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(PLG_CommonTest, closesByTheWindowToo) {
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
    EXPECT_THAT(taken(), ElementsAre("notifyPluginClosed", "deterUpdateUI true", "closePlugin tool",
                                     "deterUpdateUI false", "updateUI 4294967295"));
    EXPECT_FALSE(plugin.isDialogVisible());
}

TEST_F(PLG_CommonTest, updatesAVisibleDialogAndClosesItInAForeignMode) {
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

TEST_F(PLG_CommonTest, mayGoWhileItsHostOrItsPageStillWaits) {
    const struct {
        const char* sentence;
        std::function<void(TestPlugin*)> act;
    } rows[] = {
        {"the page waits for its user in a box",
         [this](TestPlugin* plugin) {
             auto* dialog = plugin->shownDialog();
             QPointer<JS_Mediator> bridge = dialog->getBridge();
             host.onBox = [plugin] { delete plugin; };
             bridge->confirm(QStringLiteral("Go on?"));
             EXPECT_TRUE(bridge) << "its slot has just ended";
             static_cast<JS_Mediator_ModelessPatternDialog*>(bridge.data())->onClose();
             QCoreApplication::processEvents();
             EXPECT_FALSE(bridge);
         }},
        {"the host closes it for good",
         [this](TestPlugin* plugin) {
             plugin->shownDialog();
             host.onClosePlugin = [plugin] { delete plugin; };
             plugin->slotModelessPatternDialogClosed();
         }},
        {"its page deletes it at the close",
         [](TestPlugin* plugin) {
             auto* dialog = plugin->shownDialog();
             QObject::connect(dialog->getBridge(), &JS_Mediator::close, [plugin] { delete plugin; });
             plugin->closeDialog();
         }},
        {"its page deletes it at an update",
         [](TestPlugin* plugin) {
             auto* dialog = plugin->shownDialog();
             QObject::connect(dialog->getBridge(), &JS_Mediator::update, [plugin] { delete plugin; });
             plugin->updateDialog(zeb::LiveMode);
         }},
        {"its page deletes it at the opening",
         [](TestPlugin* plugin) {
             auto* dialog = static_cast<GUI_ModelessPatternDialog*>(plugin->getDialog(true));
             QObject::connect(dialog->getBridge(), &JS_Mediator::open, [plugin] { delete plugin; });
             plugin->showDialog();
         }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.sentence);
        QPointer<TestPlugin> plugin = new TestPlugin(&host);
        row.act(plugin);
        EXPECT_FALSE(plugin);
        host.onBox = [] {};
        host.onClosePlugin = [] {};
    }
    EXPECT_THAT(QApplication::topLevelWidgets(), IsEmpty());
}

TEST_F(PLG_CommonTest, standsPressedByItsType) {
    TestPlugin plugin(&host);
    TestPlugin other(&host);
    const struct {
        const char* sentence;
        int type;
        std::function<void()> arrange;
        bool pressed;
    } rows[] = {
        {"type 1 always", 1, [] {}, true},
        {"type 2 not unless the document says so", 2, [] {}, false},
        {"type 3 when the document says so", 3, [this] { doc.toolChecked = true; }, true},
        {"type 4 not without a current plug-in", 4, [] {}, false},
        {"type 4 while it is the current plug-in", 4, [&] { host.currentPlugin = &other; }, true},
        {"type 4 not while another is", 4, [&] { other.m_name = QStringLiteral("other"); }, false},
        {"type 6 not while it has no dialog", 6, [] {}, false},
        {"type 6 while its dialog is visible", 6, [&] { plugin.shownDialog(); }, true},
        {"type 6 not once it is hidden", 6, [&] { plugin.hideDialog(); }, false},
        {"type 1 not in a foreign mode", 1, [&] { plugin.m_modeMask = 6; }, false},
    };
    for (const auto& row : rows) {
        plugin.m_buttonType = row.type;
        row.arrange();
        EXPECT_EQ(plugin.isChecked(&doc, 0), row.pressed) << row.sentence;
    }
    plugin.m_modeMask = 7;
    EXPECT_FALSE(plugin.isChecked(nullptr, 0));
}

TEST_F(PLG_CommonTest, isAvailableInTheModesOfItsMask) {
    TestPlugin plugin(&host);
    plugin.m_modeMask = 5;
    std::vector<bool> available;
    for (int mode = -1; mode <= 3; ++mode) available.push_back(plugin.isAvailableInMode(mode));
    EXPECT_THAT(available, ElementsAre(false, true, false, true, false));

    plugin.setOptionForMode(true);
    host.mode = zeb::FileMode;
    EXPECT_FALSE(plugin.getOptionForMode());
    host.mode = zeb::MemoryMode;
    EXPECT_TRUE(plugin.getOptionForMode());
}

TEST_F(PLG_CommonTest, selectsDocumentsForAToolAsItSaysItself) {
    const struct {
        const char* sentence;
        std::function<void(TestPlugin&)> arrange;
        std::vector<std::string> calls;
    } rows[] = {
        {"an inactive plug-in changes nothing", [](TestPlugin&) {}, {}},
        {"a tool with a kind becomes the quick tool and is selected",
         [](TestPlugin& p) { p.m_toolKind = 4; },
         {"setQuickTool tool true", "toolSelect on tool"}},
        {"an active tool selects all documents",
         [](TestPlugin& p) {
             p.m_toolActive = true;
             p.m_buttonType = 2;
         },
         {"setQuickTool tool false", "toolSelectAll all tool"}},
        {"or the chosen ones, as a quick tool",
         [](TestPlugin& p) {
             p.m_toolActive = true;
             p.m_buttonType = 3;
             p.m_selectKind = 1;
             p.m_quickKind = 1;
         },
         {"setActiveQuickTool", "setQuickTool tool true", "toolSelectAll chosen tool"}},
        {"the lock of many cameras is no tool of a document",
         [](TestPlugin& p) {
             p.m_name = QStringLiteral("t_multilock");
             p.m_toolKind = 1;
         },
         {}},
        {"the live view restarts under the guard",
         [](TestPlugin& p) { p.m_pauseLiveForDialog = true; },
         {"pauseLive", "restartLiveAfterTool", "refresh 1", "resumeLive"}},
        {"but a button with a dialog leaves that to the dialog",
         [](TestPlugin& p) {
             p.m_pauseLiveForDialog = true;
             p.m_buttonType = 6;
         },
         {}},
    };
    for (const auto& row : rows) {
        TestPlugin plugin(&host);
        row.arrange(plugin);
        plugin.activate();
        EXPECT_EQ(taken(), row.calls) << row.sentence;
    }
}

TEST_F(PLG_CommonTest, livesTheLifeOfATool) {
    TestPlugin plugin(&host);
    const auto liveThrough = [&] {
        plugin.activate();
        plugin.confirmTool();
        plugin.applyTool();
        plugin.cancelTool();
        plugin.resetToolGuarded(true);
        plugin.previewToolGuarded(true);
        plugin.previewToolGuarded(false);
        plugin.repeatTool();
        plugin.endTool();
        plugin.deactivate();
        return taken();
    };
    EXPECT_THAT(liveThrough(), IsEmpty()) << "it is no image tool";

    plugin.m_toolActive = true;
    plugin.m_buttonType = 2;
    plugin.m_quickKind = 1;
    EXPECT_THAT(liveThrough(),
                ElementsAre("setActiveQuickTool", "setQuickTool tool true", "toolSelectAll all tool",  // activate
                            "toolBegin tool", "closeAuxiliaryPanel",                                   // confirm
                            "toolBegin tool", "closeAuxiliaryPanel",                                   // apply
                            "toolEnd tool", "closeAuxiliaryPanel",                                     // cancel
                            "pauseLive", "undo clear", "refresh 1", "resumeLive",                      // reset
                            "pauseLive", "toolApply tool", "refresh 1", "resumeLive",                  // preview
                            "toolApply tool", "setActiveQuickTool tool",                               // again
                            "undo clear",                                                              // end
                            "closeAuxiliaryPanel"));                                                   // deactivate

    plugin.m_attributeL = true;
    plugin.m_pauseLiveForDialog = true;
    plugin.activate();
    taken();
    plugin.endTool();
    EXPECT_THAT(taken(), ElementsAre("undo clear", "toolEnd tool", "pauseLive", "restartLiveAfterEnd", "refresh 1",
                                     "resumeLive"))
        << "the host still waits for the tool's end";
    plugin.deactivate();
    EXPECT_THAT(taken(), ElementsAre("closePanel"));
}

TEST_F(PLG_CommonTest, dragsTheRectangleOfADocument) {
    TestPlugin plugin(&host);
    plugin.setAttributeO(false);
    plugin.setAttributeP(false);
    doc.toolRect = QRect(100, 50, 200, 100);

    plugin.mouseMove(QPoint(200, 50), 1);
    EXPECT_EQ(plugin.getCursorHandle(), ToolRectangle::TopEdge);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::SizeVerCursor);

    plugin.mousePress(QPoint(200, 50), 1);
    EXPECT_TRUE(plugin.isDragging());
    plugin.mouseMove(QPoint(200, 40), 1);
    plugin.mouseMove(QPoint(200, 500), 1);
    plugin.mouseMove(QPoint(200, 60), 2);
    plugin.mouseReleaseAt(QPoint(200, 500), 1);
    plugin.mouseRelease(1);
    EXPECT_THAT(taken(), ElementsAre("undo begin ''", "setToolRect tool (100,40)-(299,149)",
                                     "setToolRect tool (100,40)-(299,149)", "undo end"))
        << "it stays where its edge stopped; a document that is gone is passed over";
    EXPECT_FALSE(plugin.isDragging());
    EXPECT_EQ(plugin.getDragStart(), QPoint(200, 50));
    EXPECT_EQ(plugin.getLastPoint(), QPoint(200, 500));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);

    host.activeTool = QStringLiteral("t_crosscursor");
    plugin.mousePress(QPoint(200, 100), 1);
    plugin.mouseMove(QPoint(250, 100), 1);
    plugin.mouseRelease(1);
    EXPECT_THAT(taken(), ElementsAre("undo begin ''", "undo end")) << "the cross cursor has the mouse";
}

TEST_F(PLG_CommonTest, takesItsCursorAlongAndNoOther) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    {
        TestPlugin plugin(&host);
        plugin.resetCursor();
        plugin.setCursorForHandle(&doc, ToolRectangle::Inside);
        plugin.setCursorForHandle(&doc, ToolRectangle::LeftEdge);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::SizeHorCursor);
        plugin.setCursorForHandle(&doc, ToolRectangle::Outside);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        plugin.setCursorForHandle(&doc, ToolRectangle::Inside);
    }
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(PLG_CommonTest, movesTheRectangleByKeys) {
    TestPlugin plugin(&host);
    doc.toolRect = QRect(100, 50, 200, 100);
    host.rotation = 0.25;
    QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Enter, Qt::NoModifier);

    plugin.keyPress(&enter);
    EXPECT_FALSE(plugin.isKeyStepped());
    plugin.keyPress(&up);
    EXPECT_TRUE(plugin.isKeyStepped());
    EXPECT_THAT(taken(), ElementsAre("setToolRect tool (99,50)-(298,149)")) << "the image stands turned";
    plugin.clearKeyStepped();
    doc.toolRect = QRect();
    plugin.keyPress(&up);
    EXPECT_FALSE(plugin.isKeyStepped()) << "there is no rectangle";
}

TEST_F(PLG_CommonTest, answersForDocumentsThatMayBeGone) {
    TestPlugin plugin(&host);
    EXPECT_TRUE(plugin.hasDoc(1));
    EXPECT_FALSE(plugin.hasDoc(9));
    EXPECT_EQ(plugin.getDocPoint(1), QPoint(11, 22));
    EXPECT_EQ(plugin.getDocPoint(9), QPoint());

    const QRect rect(QPoint(16, 8), QPoint(31, 15));
    doc.binning = 2;
    doc.scale = 2.0;
    EXPECT_EQ(plugin.toSensorRect(&doc, rect), QRect(QPoint(8, 4), QPoint(15, 7))) << "it cannot bin";
    host.canBin = true;
    EXPECT_EQ(plugin.toSensorRect(&doc, rect), QRect(QPoint(2, 1), QPoint(3, 1)));
    doc.scale = 0.0;
    EXPECT_EQ(plugin.toSensorRect(&doc, rect), QRect(QPoint(4, 2), QPoint(7, 3))) << "it was not scaled";

    plugin.setRect(rect);
    EXPECT_EQ(plugin.getRectParameters(&doc, true).value(QStringLiteral("PosX")), 16);
    doc.toolRect = QRect(3, 4, 5, 6);
    EXPECT_EQ(plugin.getRectParameters(&doc, true).value(QStringLiteral("PosX")), 3);
    EXPECT_FALSE(plugin.getRectParameters(nullptr, true).contains(QStringLiteral("ZoomRate")));
    plugin.resetRect();
    EXPECT_EQ(plugin.getRect(), QRect(QPoint(0, 0), QPoint(-1, -1)));
}

TEST_F(PLG_CommonTest, warnsOfAPageThatIsNotThere) {
    TestPlugin plugin(&host);
    EXPECT_EQ(plugin.getPageHtml(), QString());
    EXPECT_THAT(taken(), ElementsAre("warning: Not Found \":/tool.html\""));
}
