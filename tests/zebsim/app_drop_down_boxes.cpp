#include "Course.h"
#include "DropDownBoxes.h"
#include "GUI_SelectBox.h"
#include "HostPages.h"
#include "JS_Mediator_SelectBox.h"
#include "support/TestHost.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QWebFrame>
#include <QWebView>
#include <QWidget>

#include <gtest/gtest.h>

namespace {

TEST(DropDownBoxes, FloatOverTheWindowOneAtATime) {
    initHostPages();
    TestHost test(Rig::standard(1));
    test.camera(1).change({{"connected", true}, {"partitions", 3}});
    test.host.docManager().setSelectedDocs({1}, 0);
    QWidget window;
    window.setGeometry(100, 50, 800, 600);
    window.show();
    DropDownBoxes boxes(test.host, window);
    const QRect anchor(20, 300, 120, 24);
    const auto waitFor = [&boxes](const char* key) {
        return QTest::qWaitFor([&] { return !boxes.dropDownBoxRect(key).isNull(); });
    };

    boxes.showDropDownBox("nothing", anchor);
    EXPECT_FALSE(boxes.isDropDownBoxShown());
    boxes.showDropDownBox("partition", anchor);
    ASSERT_TRUE(waitFor("partition"));
    // Three partitions, a line and the settings, above the control.
    const QRect place(20, 300 - 5 * 24, 120, 5 * 24);
    EXPECT_EQ(boxes.dropDownBoxRect("partition"), place);
    window.move(300, 200);
    EXPECT_EQ(boxes.dropDownBoxRect("partition"), place) << "it moves with the window";

    test.camera(1).change({{"partitions", 1}});
    boxes.showDropDownBox("variable", anchor);
    EXPECT_TRUE(boxes.dropDownBoxRect("partition").isNull());
    boxes.showDropDownBox("partition", anchor);
    boxes.hideDropDownBox("variable");
    EXPECT_TRUE(boxes.isDropDownBoxShown());
    EXPECT_EQ(boxes.dropDownBoxRect("partition").height(), 3 * 24);
    boxes.hideDropDownBox({});
    EXPECT_FALSE(boxes.isDropDownBoxShown());
}

TEST(DropDownBoxes, TakeNoChoiceThatIsNoPartition) {
    TestHost test(Rig::standard(1));
    test.camera(1).change({{"connected", true}, {"selected", true}, {"partitions", 3}, {"partition", 2}});
    JS_Mediator_SelectBox bridge(&test.host);
    for (const char* value : {"", "0", "-1", "one"}) {
        const QVariantList calls = test.callsOf([&] { bridge.slotNotifyPartition(value); });
        for (const QVariant& call : calls) {
            const QString name = call.toMap()["call"].toString();
            EXPECT_FALSE(name.contains("artition") || name.contains("Prefs")) << name.toStdString() << " by " << value;
        }
    }
    EXPECT_EQ(test.camera(1).get(&CameraState::partition), 2U);
    bridge.slotNotifyPartition("3");
    EXPECT_EQ(test.camera(1).get(&CameraState::partition), 3U);
}

TEST(DropDownBoxes, BearWhatTheirPageThrows) {
    initHostPages();
    TestHost test(Rig::standard(1));
    JS_Mediator_SelectBox bridge(&test.host);
    QWebView view;
    QWebFrame* frame = view.page()->mainFrame();
    QObject::connect(frame, &QWebFrame::javaScriptWindowObjectCleared, &bridge, [&] {
        frame->addToJavaScriptWindowObject("app", test.host.getAppObject());
        frame->addToJavaScriptWindowObject("items", &bridge);
    });
    view.load(QUrl("qrc:/selectbox.html"));
    ASSERT_TRUE(QSignalSpy(&view, &QWebView::loadFinished).wait());
    for (const char* thrown : {"null", "new Error('no list')"}) {
        frame->evaluateJavaScript(QStringLiteral("for (const name of ['show', 'setRowHeight', 'update'])"
                                                 " selectbox[name] = () => { throw %1; };")
                                      .arg(thrown));
        Course log;
        Q_EMIT bridge.signalShowPartition({"1", "2"});
        Q_EMIT bridge.signalShowVariable("{\"ChannelInfos\": []}");
        Q_EMIT bridge.signalShowVariableRegist("no JSON");
        Q_EMIT bridge.signalSetHeight(20);
        Q_EMIT bridge.update();
        const QStringList lines = log.take();
        EXPECT_EQ(lines.filter("[USER][ERROR]").size(), 5) << lines.join('\n').toStdString();
    }
}

TEST(DropDownBoxes, AreNotWantedAnyMoreWhenTheListCanNotBeRead) {
    initHostPages();
    TestHost test(Rig::standard(1));
    test.camera(1).change({{"connected", true}, {"selected", true}});
    QWidget window;
    window.show();
    GUI_SelectBox box(&test.host, "qrc:selectbox.html", &window);
    box.showBox(int(SelectBoxType::Partition), {20, 300, 120, 24}, {});
    test.host.faults().plant(1, "getPartitionName", {"no answer", 0, false});
    ASSERT_TRUE(QSignalSpy(box.findChild<QWebView*>(), &QWebView::loadFinished).wait());
    EXPECT_EQ(test.desk.shown.size(), 1);
    EXPECT_FALSE(box.isVisible());
    const QVariantList calls = test.callsOf([&] {
        QEvent left(QEvent::WindowDeactivate);
        QApplication::sendEvent(&window, &left);
    });
    EXPECT_EQ(calls, QVariantList()) << "there is nothing to hide";
}

}  // namespace
