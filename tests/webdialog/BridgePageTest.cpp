#include "Camera.h"
#include "GUI_WebPage.h"
#include "GUI_WebView.h"
#include "ProbeBridge.h"
#include "Until.h"
#include "support/StubPlugin.h"

#include <QLabel>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTcpServer>
#include <QWebFrame>

#include <gtest/gtest.h>

namespace {

/// The real page with a bridge in it.
class BridgePage : public BridgeTest {
protected:
    void SetUp() override {
        host.attachBridge(&view, &bridge);
        view.load(QUrl("qrc:/probe.html"));
        ASSERT_TRUE(QSignalSpy(&view, &QWebView::loadFinished).wait());
        course.take();
    }
    QVariant eval(const QString& script) { return view.page()->mainFrame()->evaluateJavaScript(script); }
    /// What the page got from `script`, as JSON.
    std::string json(const QString& script) {
        return eval(QStringLiteral("JSON.stringify(") % script % QStringLiteral(")")).toString().toStdString();
    }

    GUI_WebView view{&host};
};

TEST_F(BridgePage, PreferencesWithAndWithoutDefaults) {
    eval("probe.setPrefInt('a/b', 5)");
    EXPECT_EQ(course.take(), QStringList({"pause", "info: [ENTER] \"JS_Mediator::setPrefInt\" \"[name:a/b] [value:5]\"",
                                          "setPrefInt a/b 5", "updateUI 63 true",
                                          "info: [LEAVE] \"JS_Mediator::setPrefInt\"", "resume"}));
    eval("prefs.setPrefInt('a/b', 6, false)");
    EXPECT_EQ(course.take(), QStringList({"pause", "setPrefInt a/b 6", "resume"}));
    eval(
        "prefs.setPrefBool('b', true); prefs.setPrefFloat('f', 0.5); prefs.setPrefString('s', 'x'); "
        "prefs.setPrefDQString('q', '1')");
    EXPECT_EQ(course.take().filter(QRegularExpression("^setPref")),
              QStringList({"setPrefBool b true", "setPrefFloat f 0.5", "setPrefString s x", "setPref q 1"}));
    EXPECT_EQ(
        json("[prefs.getPrefInt('a/b'), prefs.getPrefBool('b'), prefs.getPrefFloat('f'), prefs.getPrefString('s')]"),
        "[6,true,0.5,\"x\"]");
    EXPECT_EQ(json("[prefs.getPrefInt('no'), prefs.getPrefInt('no', 7), prefs.getPrefBool('no', true), "
                   "prefs.getPrefString('no', 'y'), prefs.getPrefString('no')]"),
              "[0,7,true,\"y\",\"\"]");
}

TEST_F(BridgePage, StateTextsAndBoxes) {
    host.appStatus().enterMode(zeb::MemoryMode);
    host.appStatus().setWrenRunning(true);
    EXPECT_EQ(json("[JSON.parse(probe.getControlStatus()).IsMemoryMode, probe.countMdiWindow()]"), "[true,3]");
    EXPECT_EQ(json("[probe.isLiveMode(), probe.isMemoryMode(), probe.isFileMode(), probe.isWrenRunning()]"),
              "[false,true,false,true]");
    EXPECT_EQ(json("[probe.translate('a %1'), probe.translate('a %1', 'b')]"), R"(["<a %1>","<a <b>>"])");
    EXPECT_EQ(json("[probe.getWidth(), probe.getHeight(), probe.getStyle()]"), R"([-1,-1,"light"])");
    EXPECT_EQ(json("probe.load('ui-native-light.css')"), R"("QDialog { color: #010101; }\n")");
    course.take();

    EXPECT_EQ(json("probe.load('no.txt')"), "\"\"");
    eval("probe.info('i'); probe.warn('w'); probe.warn('w', ['1', '2']); probe.alert('a'); probe.alert('a', ['3'])");
    desk.answers = {{false, false}};
    EXPECT_EQ(json("probe.confirm('c')"), "false");
    eval("probe.deterUpdateUI(true); probe.updateUI()");
    QStringList entries = course.take();
    entries.removeAll("pause");
    entries.removeAll("resume");
    EXPECT_EQ(entries,
              QStringList({"warning: not found \":/no.txt\"", "info <i>", "warn <w>", "warn <w>|1|2", "alert <a>",
                           "alert <a>|3", "confirm <c>", "deterUpdateUI true", "updateUI 63 true"}));
}

TEST_F(BridgePage, DevicesAndKeysArriveAsTheyAre) {
    camera(2).change({{"alias", "</script><b>\"'"}, {"selected", true}});
    eval("var device = probe.getDeviceInfoList(false)[1]");
    EXPECT_EQ(json("[device.key, device.devicename, device.cameraname, device.headno, device['con-wifi']]"),
              R"(["2","</script><b>\"'","Camera 2",1,""])");
    EXPECT_EQ(json("probe.getSelectedDockey()"), R"(["2"])");
    EXPECT_EQ(json("JSON.parse(probe.getCalibrationUnits())[1].view"), R"("<mm>")");

    // As often as not a page hands over numbers for texts, and fractions of pixels.
    windows.listRect = {5, 6, 1, 1};
    course.take();
    eval(
        "probe.setSelectDoc(4294967294); probe.showDropDownBox('a', 1.6, 2, 3, 4);"
        "probe.hideDropDownBox('a'); probe.hideDropDownBox('b', 5, 6); probe.hideDropDownBox('c', 6, 5); "
        "probe.closePlugin(); probe.closePlugin('lut')");
    const QStringList calls = course.take().filter(QRegularExpression("^(setSel|list|hide|closeP)"));
    EXPECT_EQ(calls, QStringList({"setSelectedDocs 4294967294 0", "list a 2 2 3 4", "hide a", "hide c", "closePanel",
                                  "closePlugin lut"}));
}

TEST_F(BridgePage, FailureLooksLikeANormalReturn) {
    fail("getPrefInt");
    fail("getPrefString");
    EXPECT_EQ(json("[prefs.getPrefInt('a', 3), prefs.getPrefString('a', 'x'), probe.getStyle()]"), R"([0,"",""])");
    EXPECT_EQ(course.take().count("error <no answer>"), 1) << "three questions have met one failure";
    // A slot that does not exist, and one with arguments missing, are the page's own faults.
    eval("probe.noSuchSlot()");
    eval("probe.setPrefInt('a')");
    const QStringList faults = course.take();
    ASSERT_EQ(faults.size(), 2) << faults.join('\n').toStdString();
    EXPECT_TRUE(faults[0].startsWith("critical: ")) << faults[0].toStdString();
}

TEST_F(BridgePage, StyleReachesTheMobileDialog) {
    QWidget mainWindow;
    QDialog mobile(&mainWindow);
    mobile.setObjectName("GUI_MobileDialog");
    eval("probe.setStyle('Dark')");
    EXPECT_EQ(host.prefs().value("env/style"), "Dark");
    host.setMainWindow(&mainWindow);
    eval("probe.setStyle('Dark')");
    EXPECT_EQ(mobile.styleSheet(), "QDialog { color: #020202; }\n");
    EXPECT_TRUE(course.take().contains("info: [ENTER] \"JS_Mediator::setStyle\" \"[style:Dark]\""));
}

TEST_F(BridgePage, NothingGoesOut) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const QString outside = QStringLiteral("http://127.0.0.1:%1/").arg(server.serverPort());
    eval(QStringLiteral(
             "var out = '%1', failed = [];"
             "function fail(name) { return function () { if (failed.indexOf(name) < 0) failed.push(name); }; }"
             "function add(tag, name, url) { var e = document.createElement(tag);"
             "  e.onerror = fail(name); e[tag === 'link' ? 'href' : 'src'] = url; e.rel = 'stylesheet';"
             "  document.body.appendChild(e); }"
             "add('img', 'img', out); add('script', 'script', out); add('link', 'link', out);"
             "add('img', 'file', 'file:///etc/hostname');"
             "var x = new XMLHttpRequest(); x.onerror = fail('xhr'); x.open('GET', out); x.send();"
             "var p = new XMLHttpRequest(); p.onerror = fail('post'); p.open('POST', out); p.send('secret');"
             "try { var s = new WebSocket(out.replace('http', 'ws')); s.onclose = fail('socket'); }"
             "catch (e) { fail('socket')(); }"
             "add('iframe', 'frame', out); window.open(out); document.location = out;"
             "var a = document.createElement('a'); a.href = 'qrc:/ui-native-dark.css';"
             "document.body.appendChild(a); a.click();"
             "var f = document.createElement('form'); f.action = out; f.method = 'post';"
             "document.body.appendChild(f); f.submit();")
             .arg(outside));
    const bool allFailed = until([&] { return eval("failed.length").toInt() >= 7; });
    EXPECT_TRUE(allFailed) << json("failed");
    EXPECT_FALSE(server.waitForNewConnection(0));
    eval("var inner = document.createElement('iframe'); document.body.appendChild(inner);");
    EXPECT_EQ(json("[typeof Worker, typeof SharedWorker, typeof inner.contentWindow.WebSocket]"),
              R"(["undefined","undefined","undefined"])");
    EXPECT_EQ(view.url(), QUrl("qrc:/probe.html"));
    EXPECT_EQ(eval("document.getElementById('here').textContent"), "here");
    eval("location.hash = 'here'");
    EXPECT_EQ(view.url(), QUrl("qrc:/probe.html#here"));
}

TEST_F(BridgePage, ImagesOfThePageItselfAreServed) {
    eval(
        "var loaded = 0, i = new Image(); i.onload = function () { loaded = i.width; };"
        "i.src = 'data:image/gif;base64,R0lGODlhAQABAAAAACwAAAAAAQABAAACAkQBADs=';");
    EXPECT_TRUE(until([&] { return eval("loaded") == 1; }));
}

TEST_F(BridgePage, ScriptFaultsStandInTheLog) {
    eval("setTimeout(function () { missing.member = 1; }, 0); console.warn('careful'); console.log('seen')");
    QStringList lines;
    EXPECT_TRUE(until([&] { return (lines += course.take()).size() >= 3; }));
    EXPECT_EQ(lines.filter("critical: ").filter("Can't find variable: missing").size(), 1)
        << lines.join('\n').toStdString();
    EXPECT_EQ(lines.filter("warning: ").filter("careful").size(), 1);
    EXPECT_EQ(lines.filter("info: ").filter("seen").size(), 1);
}

/// Opens `createPlugin`, which only the engine calls.
class OpenPage : public GUI_WebPage {
public:
    using GUI_WebPage::createPlugin;
    using GUI_WebPage::GUI_WebPage;
};

TEST_F(BridgePage, ObjectElementsGetTheHostsWidgets) {
    QWidget area;
    host.setMdiWidget(&area);
    const QList<QPair<QString, QString>> panels = {
        {"histogram", "histogram"},
        {"sensorlut", "m_sensorlut"},
        {"livecontrol_hwimage_trigger_histogram", "livecontrol"},
    };
    OpenPage page(&host);
    EXPECT_EQ(page.createPlugin("mdi", {}, {}, {}), &area);
    EXPECT_EQ(page.createPlugin("unknown", {}, {}, {}), nullptr);
    for (const auto& [classId, name] : panels) {
        EXPECT_EQ(page.createPlugin(classId, {}, {}, {}), nullptr) << classId.toStdString();
        QWidget panel;
        StubPlugin plugin(name);
        plugin.panel = &panel;
        host.appStatus().registerPlugin(&plugin);
        EXPECT_EQ(page.createPlugin(classId, {}, {}, {}), &panel) << classId.toStdString();
        EXPECT_EQ(plugin.log, QStringList("preparePanel"));
    }

    auto* inPage = new QLabel("panel");
    host.setMdiWidget(inPage);
    const QPointer<QLabel> embedded(inPage);
    eval("document.body.innerHTML = '<object type=\"application/x-qt-plugin\" classid=\"mdi\"></object>'");
    EXPECT_TRUE(until([&] { return embedded && embedded->window() == &view; }));
}

}  // namespace
