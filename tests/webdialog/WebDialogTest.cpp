#include "GUI_ModelessPatternDialog.h"
#include "GUI_WebView.h"
#include "ProbeBridge.h"
#include "UTL_Messages.h"
#include "Until.h"
#include "WindowPlacement.h"
#include "support/StubPlugin.h"

#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWebFrame>

#include <gtest/gtest.h>

namespace {

const QString ProbePage = QStringLiteral("qrc:/probe.html");

class WebDialog : public testing::Test, public TestHost {
protected:
    void SetUp() override {
        host.appStatus().registerPlugin(&plugin);
        host.flags().set("IsUpdateIgnore", true);  // a page hears what the test says
    }

    GUI_WebViewDialog* makeDialog(const QString& url = ProbePage) {
        return new GUI_WebViewDialog(&host, "Title", url, bridge);
    }
    GUI_ModelessPatternDialog* makeModeless() {
        auto* dialog = new GUI_ModelessPatternDialog(&host, "Title", ProbePage, bridge, &plugin);
        plugin.dialog.reset(dialog);
        QObject::connect(dialog, &GUI_ModelessPatternDialog::shown, [] { Course::note("shown"); });
        QObject::connect(dialog, &GUI_ModelessPatternDialog::closed, [] { Course::note("closed"); });
        return dialog;
    }
    static bool waitForLoad(GUI_WebViewDialog& dialog) {
        return QSignalSpy(dialog.getWebView(), &QWebView::loadFinished).wait();
    }
    static QVariant eval(GUI_WebViewDialog& dialog, const QString& script) {
        return dialog.getWebView()->page()->mainFrame()->evaluateJavaScript(script);
    }

    MarkedTexts marked;
    Course course;
    StubPlugin plugin{QStringLiteral("wren")};
    ProbeBridge* bridge = new ProbeBridge(&host);  // the dialog's
};

TEST_F(WebDialog, LoadsDeterredAndFadesIn) {
    QWidget mainWindow;
    host.setMainWindow(&mainWindow);
    {
        const QScopedPointer<GUI_WebViewDialog> dialog(makeDialog());
        EXPECT_EQ(dialog->windowFlags(), Qt::WindowFlags(0x8003000 | Qt::Dialog));
        EXPECT_EQ(dialog->windowTitle(), "<Title>");
        dialog->show();
        ASSERT_TRUE(waitForLoad(*dialog));

        auto* fade = dialog->findChild<QPropertyAnimation*>();
        ASSERT_TRUE(fade);
        EXPECT_EQ(fade->duration(), 500);
        EXPECT_EQ(fade->easingCurve().type(), QEasingCurve::InExpo);
        fade->setCurrentTime(0);
        EXPECT_EQ(dialog->windowOpacity(), 0.0);
        fade->setCurrentTime(fade->duration());
        EXPECT_EQ(dialog->windowOpacity(), 1.0);
        EXPECT_EQ(course.take(),
                  QStringList({"suspendViewer", "info: [ENTER] \"GUI_WebViewDialog::loadStarted\" \"\"",
                               "deterUpdateUI true", "info: [LEAVE] \"GUI_WebViewDialog::loadStarted\"",
                               "info: [ENTER] \"GUI_WebViewDialog::loadFinished\" \"[ok:true]\"", "deterUpdateUI false",
                               "updateUI 4294967295 true", "info: [LEAVE] \"GUI_WebViewDialog::loadFinished\""}));
        // What the host's first update cycle does: the page has connected by then.
        bridge->raiseUpdate();
        EXPECT_EQ(eval(*dialog, "heard.join()"), "update");
    }
    EXPECT_EQ(course.take(), QStringList("resumeViewer"));
}

TEST_F(WebDialog, FailedBrokenOffAndRepeatedLoadsLiftTheDeterrence) {
    {
        const QScopedPointer<GUI_WebViewDialog> dialog(makeDialog("qrc:/missing.html"));
        ASSERT_TRUE(waitForLoad(*dialog));
        EXPECT_TRUE(dialog->findChild<QPropertyAnimation*>());
        const QStringList entries = course.take();
        EXPECT_TRUE(entries.contains("info: [ENTER] \"GUI_WebViewDialog::loadFinished\" \"[ok:false]\""));
        EXPECT_EQ(entries.count("deterUpdateUI false"), 1);

        dialog->loadStarted();
        dialog->loadStarted();
        dialog->loadFinished(true);
        EXPECT_EQ(dialog->findChildren<QPropertyAnimation*>().size(), 1);
    }
    bridge = new ProbeBridge(&host);
    delete makeDialog();  // in the middle of its load
    const QStringList entries = course.take();
    EXPECT_EQ(entries.count("deterUpdateUI true"), 3);
    EXPECT_EQ(entries.count("deterUpdateUI false"), 3);
}

TEST_F(WebDialog, WithoutMainWindowStandsInTheMiddleOfAScreen) {
    const QScopedPointer<GUI_WebViewDialog> dialog(makeDialog());
    dialog->resize(401, 300);
    dialog->show();
    for (int stored : {0, 99, -1}) {
        host.prefs().setValue("main/scrno", stored);
        dialog->move(3, 4);
        dialog->loadFinished(true);
        const QPoint off = dialog->frameGeometry().center() - dialog->screen()->geometry().center();
        EXPECT_LE(off.manhattanLength(), 2) << stored;
    }
    QWidget mainWindow;
    host.setMainWindow(&mainWindow);
    dialog->move(3, 4);
    dialog->loadFinished(true);
    EXPECT_EQ(dialog->pos(), QPoint(3, 4));
    EXPECT_EQ(centeredTopLeft(QRect(1920, 100, 1000, 500), QSize(400, 300)), QPoint(2220, 200));
}

TEST_F(WebDialog, EscapeDoesNothingAndEnterReachesTheDialog) {
    const QScopedPointer<GUI_WebViewDialog> dialog(makeDialog());
    auto* button = new QPushButton(dialog.data());
    button->setDefault(true);
    QSignalSpy clicked(button, &QPushButton::clicked);
    dialog->show();
    ASSERT_TRUE(waitForLoad(*dialog));
    QTest::keyClick(dialog->getWebView(), Qt::Key_Escape);
    QTest::keyClick(dialog.data(), Qt::Key_Escape);
    EXPECT_TRUE(dialog->isVisible());
    QTest::keyClick(dialog.data(), Qt::Key_Return);
    EXPECT_EQ(clicked.size(), 1);
}

TEST_F(WebDialog, CloseButtonIsSwitchedOnce) {
    auto* dialog = makeModeless();
    dialog->show();
    for (const bool on : {false, true}) {
        course.take();
        for (int i = 0; i < 2; ++i) {
            on ? dialog->signalEnableCloseButton() : dialog->signalDisableCloseButton();
        }
        EXPECT_EQ(dialog->windowFlags().testFlag(Qt::WindowCloseButtonHint), on);
        EXPECT_EQ(course.take().count("shown"), 1);
        EXPECT_TRUE(dialog->isVisible());
    }
}

TEST_F(WebDialog, PageClosesTheDialogAndHearsOfARejection) {
    const QScopedPointer<GUI_WebViewDialog> dialog(makeDialog());
    ASSERT_TRUE(waitForLoad(*dialog));
    dialog->show();
    eval(*dialog, "probe.accept()");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Accepted);

    dialog->show();
    course.take();
    dialog->close();
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_EQ(eval(*dialog, "heard.join()"), "rejected");
    EXPECT_EQ(course.take(), QStringList({"info: [USER] \"[URL:GUI_WebViewDialog] [ID:close] [Control:Button] "
                                          "[Operation:clicked] [Value:] \"",
                                          "info: [ENTER] \"GUI_WebViewDialog::closeEvent\" \"\"",
                                          "info: [LEAVE] \"GUI_WebViewDialog::closeEvent\""}));
}

TEST_F(WebDialog, ModelessDialogLivesOnAfterAClose) {
    auto* dialog = makeModeless();
    ASSERT_TRUE(waitForLoad(*dialog));
    EXPECT_TRUE(dialog->isPluginCloseEnabled());
    for (int round = 1; round <= 2; ++round) {
        course.take();
        dialog->show();
        const QStringList opened = course.take();
        EXPECT_EQ(opened.count("shown"), 1);
        EXPECT_EQ(opened.indexOf("notifyPluginShown"), 0);
        dialog->close();
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(course.take().mid(1), QStringList({"notifyPluginClosed", "closed"}));
        EXPECT_EQ(eval(*dialog, "heard.filter(function (n) { return n === 'close'; }).length"), round);
    }
    dialog->updatePage();
    EXPECT_EQ(eval(*dialog, "heard.pop()"), "update");
}

TEST_F(WebDialog, ActivationTellsTheHostAndReselectsTheTool) {
    auto* dialog = makeModeless();
    QEvent activate(QEvent::WindowActivate);
    course.take();
    QCoreApplication::sendEvent(dialog, &activate);
    EXPECT_EQ(course.take(), QStringList("notifyPluginShown"));
    plugin.reselect = true;
    fail("setQuickTool");
    QCoreApplication::sendEvent(dialog, &activate);
    EXPECT_EQ(course.take(), QStringList({"setQuickTool wren false", "critical: \"no answer\"", "notifyPluginShown"}));
}

TEST_F(WebDialog, CloseDuringACallComesOnceWhenTheCallHasEnded) {
    auto* dialog = makeModeless();
    ASSERT_TRUE(waitForLoad(*dialog));
    dialog->show();
    desk.whileStanding = [&] {
        EXPECT_FALSE(dialog->close());
        EXPECT_FALSE(dialog->close());
        QCoreApplication::processEvents();
        EXPECT_TRUE(dialog->isVisible());
    };
    course.take();
    eval(*dialog, "probe.warn('a box')");
    EXPECT_TRUE(until([&] { return !dialog->isVisible(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(course.take().filter("close", Qt::CaseInsensitive).size(), 3);  // user's line, host, `closed`
}

TEST_F(WebDialog, ClosingHostDismissesOurBox) {
    auto* dialog = makeModeless();
    dialog->show();
    bridge->work = [&] {
        QTimer::singleShot(0, dialog, [&] {
            host.flags().set("IsApplicationClosing", true);
            dialog->close();
            QWidget* box = QApplication::activeModalWidget();
            EXPECT_FALSE(box);
            if (box) {
                box->close();
            }
        });
        EXPECT_FALSE(UTL_Messages::warnOkCancel("go on?", host));
    };
    bridge->run();
    EXPECT_TRUE(until([&] { return !dialog->isVisible(); }));
}

TEST_F(WebDialog, ItsOwnBridgeIsPrefsWhicheverIsAskedLast) {
    const QScopedPointer<GUI_WebViewDialog> dialog(makeDialog());
    auto* second = new JS_Mediator_Dialog(&host, "second");
    dialog->addBridge(second);
    ASSERT_TRUE(waitForLoad(*dialog));
    second->addPrefsJSObject();
    EXPECT_EQ(eval(*dialog, "prefs.objectName + ' ' + second.objectName"), "probe second");
}

TEST_F(WebDialog, PageOutlivesItsDialogUntilTheCallHasEnded) {
    const QPointer<GUI_WebViewDialog> dialog(makeDialog());
    auto* extra = new ProbeBridge(&host);
    dialog->addBridge(extra);
    const QPointer<GUI_WebView> view(dialog->getWebView());
    const QPointer<ProbeBridge> main(bridge);
    const QPointer<ProbeBridge> second(extra);
    ASSERT_TRUE(waitForLoad(*dialog));
    desk.whileStanding = [&] {
        delete dialog;
        QCoreApplication::processEvents();
        EXPECT_TRUE(view && main && second);
    };
    view->page()->mainFrame()->evaluateJavaScript("document.title = probe.confirm('go on?')");
    ASSERT_TRUE(view);
    EXPECT_EQ(view->title(), "true");
    EXPECT_TRUE(until([&] { return !view && !main && !second; }));
}

}  // namespace
