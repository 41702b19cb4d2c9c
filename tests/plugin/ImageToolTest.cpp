#include "RigFile.h"
#include "TestPlugin.h"

#include <QApplication>
#include <QKeyEvent>

using testing::ElementsAre;
using testing::IsEmpty;

using ImageTool = PLG_CommonTest;

TEST_F(ImageTool, SelectsDocumentsForAToolAsItSaysItself) {
    const struct {
        const char* sentence;
        std::function<void(TestPlugin&)> arrange;
        std::vector<std::string> calls;
    } rows[] = {
        {"a tool with a kind becomes the quick tool and is selected",
         [](TestPlugin& p) { p.m_toolKind = 4; },
         {"setQuickTool tool true", "toolSelect tool true"}},
        {"an active tool selects the chosen documents, as a quick tool",
         [](TestPlugin& p) {
             p.m_toolActive = true;
             p.m_buttonType = 3;
             p.m_selectKind = 1;
             p.m_quickKind = 1;
         },
         {"setActiveQuickTool", "setQuickTool tool true", "toolSelectAll tool false true"}},
        {"the lock of many cameras is no tool of a document",
         [](TestPlugin& p) {
             p.m_name = QStringLiteral("t_multilock");
             p.m_toolKind = 1;
         },
         {}},
        {"the live view restarts under the guard",
         [](TestPlugin& p) { p.m_pauseLiveForDialog = true; },
         {"pauseLive 0", "restartLiveAfterTool 0", "refresh 1 true", "resumeLive"}},
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

TEST_F(ImageTool, LivesTheLifeOfATool) {
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
                ElementsAre("setActiveQuickTool", "setQuickTool tool true", "toolSelectAll tool true true",  // activate
                            "toolBegin 1 tool", "closeAuxiliaryPanel",                                       // confirm
                            "toolBegin 1 tool", "closeAuxiliaryPanel",                                       // apply
                            "toolEnd tool", "closeAuxiliaryPanel",                                           // cancel
                            "pauseLive 0", "clear", "refresh 1 true", "resumeLive",                          // reset
                            "pauseLive 0", "toolApply tool", "refresh 1 true", "resumeLive",                 // preview
                            "toolApply tool", "setActiveQuickTool tool",                                     // again
                            "clear",                                                                         // end
                            "closeAuxiliaryPanel"));  // deactivate

    plugin.m_attributeL = true;
    plugin.m_pauseLiveForDialog = true;
    plugin.activate();
    taken();
    plugin.endTool();
    EXPECT_THAT(taken(), ElementsAre("clear", "toolEnd tool", "pauseLive 0", "restartLiveAfterEnd 0", "refresh 1 true",
                                     "resumeLive"))
        << "the host still waits for the tool's end";
    plugin.deactivate();
    EXPECT_THAT(taken(), ElementsAre("closePanel"));
}

TEST_F(ImageTool, DragsTheRectangleOfADocument) {
    TestPlugin plugin(&host);
    plugin.setAttributeO(false);
    plugin.setAttributeP(false);
    setToolRect(QRect(100, 50, 200, 100));

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
    EXPECT_THAT(taken(), ElementsAre("beginMacro", "setToolRect 1 tool 100,40,200,110",
                                     "setToolRect 1 tool 100,40,200,110", "endMacro"))
        << "it stays where its edge stopped; a document that is gone is passed over";
    EXPECT_FALSE(plugin.isDragging());
    EXPECT_EQ(plugin.getDragStart(), QPoint(200, 50));
    EXPECT_EQ(plugin.getLastPoint(), QPoint(200, 500));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);

    host.docManager().setActiveQuickTool("t_crosscursor");
    taken();
    plugin.mousePress(QPoint(200, 100), 1);
    plugin.mouseMove(QPoint(250, 100), 1);
    plugin.mouseRelease(1);
    EXPECT_THAT(taken(), ElementsAre("beginMacro", "endMacro")) << "the cross cursor has the mouse";
}

TEST_F(ImageTool, TakesItsCursorAlongAndNoOther) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    {
        TestPlugin plugin(&host);
        plugin.resetCursor();
        plugin.setCursorForHandle(doc(1), ToolRectangle::Inside);
        plugin.setCursorForHandle(doc(1), ToolRectangle::LeftEdge);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::SizeHorCursor);
        plugin.setCursorForHandle(doc(1), ToolRectangle::Outside);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        plugin.setCursorForHandle(doc(1), ToolRectangle::Inside);
    }
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ImageTool, MovesTheRectangleByKeys) {
    TestPlugin plugin(&host);
    setToolRect(QRect(100, 50, 200, 100));
    change({{"rotation", 0.25}});
    QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Enter, Qt::NoModifier);

    plugin.keyPress(&enter);
    EXPECT_FALSE(plugin.isKeyStepped());
    plugin.keyPress(&up);
    EXPECT_TRUE(plugin.isKeyStepped());
    EXPECT_THAT(taken(), ElementsAre("setToolRect 1 tool 99,50,200,100")) << "the image stands turned";
    plugin.clearKeyStepped();
    setToolRect(QRect());
    plugin.keyPress(&up);
    EXPECT_FALSE(plugin.isKeyStepped()) << "there is no rectangle";
}

TEST_F(ImageTool, AnswersForDocumentsThatMayBeGone) {
    TestPlugin plugin(&host);
    change({{"point", QVariantList{11, 22}}, {"binningPower", 2}, {"scale", 2.0}});
    EXPECT_TRUE(plugin.hasDoc(1));
    EXPECT_FALSE(plugin.hasDoc(9));
    EXPECT_EQ(plugin.getDocPoint(1), QPoint(11, 22));
    EXPECT_EQ(plugin.getDocPoint(9), QPoint());

    const QRect rect(QPoint(16, 8), QPoint(31, 15));
    EXPECT_EQ(plugin.toSensorRect(doc(1), rect), QRect(QPoint(2, 1), QPoint(3, 1)));
    change({{"scale", 0.0}});
    EXPECT_EQ(plugin.toSensorRect(doc(1), rect), QRect(QPoint(4, 2), QPoint(7, 3))) << "it was not scaled";

    plugin.setRect(rect);
    EXPECT_EQ(plugin.getRectParameters(doc(1), true).value(QStringLiteral("PosX")), 16);
    setToolRect(QRect(3, 4, 5, 6));
    EXPECT_EQ(plugin.getRectParameters(doc(1), true).value(QStringLiteral("PosX")), 3);
    EXPECT_FALSE(plugin.getRectParameters(nullptr, true).contains(QStringLiteral("ZoomRate")));
    host.setRig(readRig("eight-mixed"));
    camera(5).change({{"connected", true}, {"binningPower", 2}, {"scale", 2.0}});
    EXPECT_EQ(plugin.toSensorRect(doc(5), rect), QRect(QPoint(8, 4), QPoint(15, 7))) << "it cannot bin";
    plugin.resetRect();
    EXPECT_EQ(plugin.getRect(), QRect(QPoint(0, 0), QPoint(-1, -1)));
}
