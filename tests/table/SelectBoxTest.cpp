#include "GUI_SelectBox.h"
#include "GUI_WebView.h"
#include "HostPages.h"
#include "JS_Mediator_SelectBox.h"
#include "TableFixture.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QWebFrame>
#include <QWebPage>

namespace {

constexpr QRect Anchor(40, 500, 160, 30);
constexpr QRect WindowRect(200, 100, 1200, 700);

/// The box with the host's page over an empty window, cameras 1 and 2 selected.
class SelectBoxTest : public TableFixture {
protected:
    static void SetUpTestSuite() { initHostPages(); }

    SelectBoxTest() {
        window.setGeometry(WindowRect);
        window.show();
        connectAll();
        change(1, {{"partitions", 4}, {"partition", 2}, {"partitionNames", QStringList{"Warm-up", "Shot"}}});
        change(2, {{"partitions", 4}});
        host.docManager().setSelectedDocs({1, 2}, 0);
        host.docManager().setCurrentDoc(1, 1);
        makeBox("qrc:selectbox.html");
        calls();
    }

    void makeBox(const QString& url) {
        box = std::make_unique<GUI_SelectBox>(&host, url, &window);
        view = box->findChild<GUI_WebView*>();
        ASSERT_TRUE(QSignalSpy(view, &QWebView::loadFinished).wait());
    }

    QVariant eval(const QString& script) const { return view->page()->mainFrame()->evaluateJavaScript(script); }
    QStringList rows() const {
        return eval("Array.from(document.querySelectorAll('#items>li>a')).map(row => row.textContent)").toStringList();
    }
    void choose(int row) const { eval(QString("document.querySelectorAll('#items>li>a')[%1].click()").arg(row)); }
    void show(SelectBoxType type = SelectBoxType::Partition, const QString& value = {}) const {
        box->showBox(int(type), Anchor, value);
    }
    static void send(QWidget* widget, QEvent::Type type) {
        QEvent event(type);
        QApplication::sendEvent(widget, &event);
    }
    /// What was asked of cameras; new images, which follow any change, are left out.
    QStringList changes() { return calls("^(?!ZebHost::|DOC_Activity::refresh)"); }

    QWidget window;
    std::unique_ptr<GUI_SelectBox> box;
    GUI_WebView* view = nullptr;
};

TEST_F(SelectBoxTest, ListsThePartitionsOverTheControl) {
    show();
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(rows(), (QStringList{"Warm-up", "Shot", "Partition 3", "Partition 4", "", "Settings..."}));
    EXPECT_EQ(eval("document.querySelector('a.selected').getAttribute('index')").toInt(), 1);
    EXPECT_EQ(box->geometry(), QRect(240, 600 - 6 * 30, 160, 6 * 30));
    EXPECT_EQ(eval("document.body.scrollHeight").toInt(), 6 * 30) << "rows are as high as the control";

    box->setParentRect(WindowRect.translated(-50, 20));
    EXPECT_EQ(box->geometry(), QRect(190, 620 - 6 * 30, 160, 6 * 30));

    host.appStatus().enterMemoryMode();
    show(SelectBoxType::OtherPartition);
    EXPECT_EQ(rows(), (QStringList{"Warm-up", "Shot", "Partition 3", "Partition 4"}));

    host.docManager().setSelectedDocs({}, 0);
    EXPECT_EQ(eval("items.getCurrentPartition()").toInt(), 0);
}

TEST_F(SelectBoxTest, ScrollsToTheChosenRow) {
    change(1, {{"partitions", 30}, {"partition", 20}});
    show();
    EXPECT_EQ(box->height(), 300);
    EXPECT_EQ(view->page()->mainFrame()->scrollBarValue(Qt::Vertical), 19 * 30);
    EXPECT_GT(view->page()->mainFrame()->scrollBarGeometry(Qt::Vertical).width(), 0);
    EXPECT_LE(eval("document.documentElement.scrollWidth").toInt(), 160);
}

TEST_F(SelectBoxTest, AChosenPartitionReachesTheSelectedCameras) {
    show();
    host.updates().deter(true);
    choose(2);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(changes(), (QStringList{"setPartition 3 1", "applyPartition 1 0", "applyPartition 2 0"}));
    EXPECT_EQ(stateOf(1, "partition").toInt(), 3);
    EXPECT_TRUE(host.updates().isPending()) << "the pages are told";
    host.updates().deter(false);
}

TEST_F(SelectBoxTest, IsWorkedByTheKeysOfItsWindow) {
    QLineEdit field(&window);
    field.show();
    field.setFocus();
    const auto keys = [&](std::initializer_list<Qt::Key> all) {
        show();
        for (const Qt::Key key : all) {
            QTest::keyClick(&field, key);
        }
        return stateOf(1, "partition").toInt();
    };
    EXPECT_EQ(keys({Qt::Key_Down, Qt::Key_Return}), 3);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(keys({Qt::Key_Home, Qt::Key_Up, Qt::Key_Enter}), 1);
    EXPECT_EQ(keys({Qt::Key_End, Qt::Key_Up, Qt::Key_Return}), 4) << "not the line between";
    EXPECT_EQ(keys({Qt::Key_Up, Qt::Key_Escape}), 4);
    EXPECT_FALSE(box->isVisible());
    QTest::keyClick(&field, Qt::Key_Home);
    QTest::keyClicks(&field, "a");
    EXPECT_EQ(field.text(), "a");
}

TEST_F(SelectBoxTest, BehindTheLastPartitionAreTheSettingsInLiveMode) {
    show();
    choose(4);
    EXPECT_TRUE(box->isVisible()) << "the line between is no choice";
    choose(5);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(changes(), QStringList{"stopForPrefs"});
    for (const char* value : {"", "0", "-1", "one"}) {
        eval(QString("items.slotNotifyPartition('%1')").arg(value));
    }
    EXPECT_EQ(changes(), QStringList()) << "they are no partitions";

    host.appStatus().enterMemoryMode();
    show();
    calls();
    eval("items.slotNotifyPartition('5')");
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(changes(), QStringList());
    host.docManager().setSelectedDocs({}, 0);
    calls();
    eval("items.slotNotifyPartition('1')");
    EXPECT_EQ(changes(), QStringList()) << "there is no current camera";
}

TEST_F(SelectBoxTest, ListsTheVariableChannels) {
    eval(
        "items.signalShowVariable.connect(json => last = json);"
        "items.signalShowVariableRegist.connect(json => last = 'registration: ' + json)");
    const auto told = [this] { return eval("last").toString(); };
    show(SelectBoxType::Variable);
    EXPECT_EQ(told(), R"({"ChannelInfos":[],"SelectValue":"0","SupportedVariable":false})");
    EXPECT_EQ(box->geometry(), QRect(240, 629, 160, 0)) << "camera 1 has none";

    host.docManager().setSelectedDocs({7}, 0);
    change(7, {{"variableChannels", QStringList{"<b>1000 fps</b>", "", "512 x 512"}}, {"variable", 3}});
    calls();
    QStringList expected{R"({"Settable":true,"Value":"1","VariableInfo":"<b>1000 fps</b>"})",
                         R"({"Settable":false,"Value":"2","VariableInfo":""})",
                         R"({"Settable":true,"Value":"3","VariableInfo":"512 x 512"})"};
    for (int channel = 4; channel <= 20; ++channel) {
        expected.append(QString(R"({"Settable":false,"Value":"%1","VariableInfo":""})").arg(channel));
    }
    const QString list =
        R"({"ChannelInfos":[)" + expected.join(',') + R"(],"SelectValue":"%1","SupportedVariable":true})";
    show(SelectBoxType::Variable);
    EXPECT_EQ(told(), list.arg(3));
    EXPECT_EQ(eval("document.querySelector('a.selected').textContent").toString(), "3: 512 x 512");
    EXPECT_EQ(box->geometry().right(), 240 + 160 - 1) << "it grows to the left";
    EXPECT_GT(box->width(), 160);

    choose(1);
    EXPECT_TRUE(box->isVisible()) << "nothing is in channel 2";
    choose(0);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(changes(), (QStringList{"pauseLive 0", "setVariable 1", "resumeLive"}));
    eval("items.slotNotifyVariable('go-variable')");
    show(SelectBoxType::VariableRegist, "2");
    EXPECT_EQ(told(), "registration: " + list.arg(2));
    choose(1);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(changes(), QStringList());
}

TEST_F(SelectBoxTest, NamesAreTextAndNothingElse) {
    const QString hostile = R"(<img src=x onerror="window.ran=1"><b>'"&amp;)";
    change(1, {{"partitionNames", QStringList{hostile}}});
    show();
    EXPECT_EQ(rows().first(), hostile);
    EXPECT_EQ(eval("document.querySelectorAll('#items img, #items b').length").toInt(), 0);
}

TEST_F(SelectBoxTest, ARefusedPartitionIsToldOnceWithTheListGone) {
    host.faults().plant(2, "setPartition", {"no answer", 0, false});
    show();
    bool shown = true;
    desk.whileStanding = [&] { shown = box->isVisible(); };
    choose(2);
    EXPECT_EQ(desk.shown.size(), 1);
    EXPECT_FALSE(shown);
    EXPECT_TRUE(changes().filter("applyPartition").isEmpty());
}

TEST_F(SelectBoxTest, AListThatCanNotBeReadIsNotShown) {
    host.faults().plant(1, "getPartitionName", {"no answer", 0, false});
    EXPECT_THROW(show(), std::exception);
    EXPECT_FALSE(box->isVisible());

    host.faults().clear();
    box = std::make_unique<GUI_SelectBox>(&host, "qrc:selectbox.html", &window);
    show();
    host.faults().plant(1, "getPartitionName", {"no answer", 0, false});
    ASSERT_TRUE(QSignalSpy(box->findChild<GUI_WebView*>(), &QWebView::loadFinished).wait());
    EXPECT_EQ(desk.shown.size(), 1);
    EXPECT_FALSE(box->isVisible());
    calls();
    send(&window, QEvent::WindowDeactivate);
    EXPECT_EQ(calls(), QStringList()) << "there is nothing to hide";
}

TEST_F(SelectBoxTest, BearsWhatItsPageThrows) {
    auto* bridge = qobject_cast<JS_Mediator_SelectBox*>(eval("items").value<QObject*>());
    ASSERT_NE(bridge, nullptr);
    for (const char* thrown : {"null", "new Error('no list')"}) {
        eval(QString("['show', 'setRowHeight', 'update'].forEach(name => selectbox[name] = () => { throw %1; })")
                 .arg(thrown));
        Course log;
        Q_EMIT bridge->signalShowPartition({"1", "2"});
        Q_EMIT bridge->signalShowVariable("{\"ChannelInfos\": []}");
        Q_EMIT bridge->signalShowVariableRegist("no JSON");
        Q_EMIT bridge->signalSetHeight(20);
        Q_EMIT bridge->update();
        const QStringList lines = log.take();
        EXPECT_EQ(lines.filter("[USER][ERROR]").size(), 5) << lines.join('\n').toStdString();
    }
}

TEST_F(SelectBoxTest, WaitsForItsPage) {
    box = std::make_unique<GUI_SelectBox>(&host, "qrc:selectbox.html", &window);
    view = box->findChild<GUI_WebView*>();
    show();
    EXPECT_FALSE(box->isVisible());
    ASSERT_TRUE(QSignalSpy(view, &QWebView::loadFinished).wait());
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(rows().size(), 6);

    makeBox("qrc:nothing.html");
    show();
    EXPECT_FALSE(box->isVisible()) << "for good";
}

TEST_F(SelectBoxTest, HidesWithItsWindow) {
    for (QWidget* left : {static_cast<QWidget*>(box.get()), &window}) {
        show();
        send(left, QEvent::WindowDeactivate);
        EXPECT_FALSE(box->isVisible());
        EXPECT_EQ(calls(), QStringList{"hideSelectBox"});
    }

    show();
    window.hide();
    EXPECT_FALSE(box->isVisible());
    window.show();
    show();
    window.showMinimized();
    EXPECT_FALSE(box->isVisible());
}

TEST_F(SelectBoxTest, ACloseByTheUserStandsInTheLog) {
    show();
    Course log;
    box->close();
    EXPECT_FALSE(box->isVisible());
    EXPECT_TRUE(log.take().contains(
        R"(info: [USER] "[URL:GUI_SelectBox] [ID:close] [Control:Button] [Operation:clicked] [Value:] ")"));
}

TEST_F(SelectBoxTest, TakesTheStyleOfTheUser) {
    show();
    const auto styleOf = [this](const char* style) {
        host.prefs().setValue("env/style", style);
        box->onUpdate();
        return view->styleSheet();
    };
    EXPECT_EQ(styleOf("dark"), "background:#333;");
    EXPECT_EQ(styleOf("light"), "background:#eee;");
}

/// The page goes on in its call while the box is destroyed under it.
TEST_F(SelectBoxTest, DestroyedInsideItsOwnCallItEndsTheCall) {
    host.faults().plant(1, "setPartition", {"no answer", 0, false});
    show();
    const QPointer<GUI_WebView> page = view;
    desk.whileStanding = [this] { box.reset(); };
    choose(0);
    EXPECT_TRUE(page);
    EXPECT_TRUE(QTest::qWaitFor([&page] { return !page; }));
}

}  // namespace
