#include "TablePage.h"

#include "HostPages.h"
#include "KeyInput.h"
#include "PageScript.h"
#include "ScenarioError.h"
#include "Until.h"

#include <QDialog>
#include <QFile>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>
#include <QWebFrame>
#include <QWebView>
#include <QWindow>

#include <algorithm>
#include <iostream>

namespace {

QStringList* expectedErrors = nullptr;

/// Nobody sees a script's error but the log.
void watchLog(QtMsgType type, const QMessageLogContext&, const QString& line) {
    const bool isError = line.contains(QLatin1String("[USER][ERROR]"));
    if (isError && expectedErrors != nullptr) {
        expectedErrors->append(line);
    } else if (isError) {
        ADD_FAILURE() << line.toStdString();
    } else if (type != QtDebugMsg && type != QtInfoMsg) {
        std::cerr << line.toStdString() << '\n';
    }
}

TestHost& prepared(TestHost& test) {
    initHostPages();
    TablePage::watchErrors();
    test.host.prefs().setValue(QStringLiteral("wren/table/interval"), TablePage::TickMs);
    test.host.prefs().setValue(QStringLiteral("wren/table/w"), 1700);
    test.host.prefs().setValue(QStringLiteral("wren/table/h"), 1000);
    return test;
}

}  // namespace

TablePage::TablePage(TestHost& test, int tab)
    : m_test(prepared(test)), m_loader(QStringLiteral(WREN_LIBRARY), test.host), m_slot(test.host, m_loader.plugin()) {
    m_slot.open();
    // What the bridge waits for when it is made lets cycles pass that the page is not there for yet.
    EXPECT_TRUE(until("window.wrentabledialog_obj !== undefined && !wrentabledialog_obj.initialize"));
    settle();
    QFile probe(QStringLiteral(":/page_test/probe.js"));
    EXPECT_TRUE(probe.open(QIODevice::ReadOnly));
    view().page()->mainFrame()->evaluateJavaScript(QString::fromUtf8(probe.readAll()));
    show(tab);
}

TablePage::~TablePage() {
    expectErrors(nullptr);
    m_test.host.flags().set(QStringLiteral("IsApplicationClosing"), true);
    m_slot.close();
    m_test.host.flags().set(QStringLiteral("IsApplicationClosing"), false);
    EXPECT_EQ(m_test.desk.texts(), QStringList()) << "message boxes";
    qInstallMessageHandler(nullptr);
}

QJsonValue TablePage::run(const QString& script) {
    try {
        return PageScript(script).run(view());
    } catch (const ScenarioError& e) {
        ADD_FAILURE() << e.what();
        return {};
    }
}

QStringList TablePage::list(const QString& script) {
    return run(script).toVariant().toStringList();
}

void TablePage::show(int tab) {
    run(QStringLiteral("$('#tabs').tabs('option', 'active', %1)").arg(tab));
    settle();
}

QStringList TablePage::tickRows() {
    QStringList places = tick();
    places.erase(std::remove_if(places.begin(), places.end(),
                                [](const QString& place) {
                                    return place.startsWith(QLatin1String("-1/")) ||
                                           place.contains(QLatin1String("#wren_status"));
                                }),
                 places.end());
    return places;
}

void TablePage::expectErrors(QStringList* lines) {
    expectedErrors = lines;
}

void TablePage::watchErrors() {
    qInstallMessageHandler(watchLog);
}

bool TablePage::until(const QString& script) {
    return ::until([&] { return run(script).toBool(); });
}

void TablePage::settle() {
    EXPECT_TRUE(::until([this] { return !m_test.host.updates().isPending(); })) << "no end of the updates";
}

void TablePage::enter(zeb::OperatingMode mode) {
    m_test.host.appStatus().enterMode(mode);
    settle();
}

void TablePage::update() {
    m_test.host.updates().request();
    settle();
}

void TablePage::input(const QString& selector, const ClickOptions& options) {
    try {
        PageInput(view(), [] { return false; }).click(selector, options);
    } catch (const ScenarioError& e) {
        ADD_FAILURE() << e.what();
    }
    settle();
}

void TablePage::click(const QString& selector, Qt::KeyboardModifiers modifiers) {
    ClickOptions options;
    options.modifiers = modifiers;
    input(selector, options);
}

void TablePage::doubleClick(const QString& selector) {
    click(selector);
    update();
    // A release moves the clock of the mouse on, so that no click counts as the second one.
    QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
    QTest::mouseClick(&handle(), Qt::LeftButton, {}, spotOf(selector, 0.5));
    settle();
}

void TablePage::press(const QString& selector) {
    ClickOptions options;
    options.part = ClickOptions::PressOnly;
    input(selector, options);
    m_spot = spotOf(selector, 0.5);
}

void TablePage::pressAt(const QString& selector, double right, double down) {
    m_spot = spotOf(selector, right, down);
    QTest::mouseMove(&handle(), m_spot);
    QTest::mousePress(&handle(), Qt::LeftButton, {}, m_spot);
    settle();
}

void TablePage::clickMoving(const QString& selector, int pixels, Qt::KeyboardModifiers modifiers) {
    const QPoint from = spotOf(selector, 0.99);
    QTest::mouseMove(&handle(), from);
    QTest::mousePress(&handle(), Qt::LeftButton, modifiers, from);
    for (int x = 1; x <= pixels; ++x) {
        QTest::mouseMove(&handle(), from + QPoint(x, 0));
    }
    QTest::mouseRelease(&handle(), Qt::LeftButton, modifiers, from + QPoint(pixels, 0));
    settle();
}

void TablePage::move(const QString& selector, double share) {
    m_spot = spotOf(selector, share);
    QTest::mouseMove(&handle(), m_spot);
}

QPoint TablePage::spotOf(const QString& selector, double right, double down) {
    const QVariantMap spot = run(QStringLiteral("document.querySelector('%1').getBoundingClientRect()").arg(selector))
                                 .toObject()
                                 .toVariantMap();
    const double x = spot.value("left").toDouble() + right * spot.value("width").toDouble();
    const double y = spot.value("top").toDouble() + down * spot.value("height").toDouble();
    return view().mapTo(&window(), QPoint(qRound(x), qRound(y)));
}

void TablePage::release() {
    QTest::mouseRelease(&handle(), Qt::LeftButton, {}, m_spot);
    settle();
}

void TablePage::releaseOutside() {
    QTest::mouseRelease(&handle(), Qt::LeftButton, {}, QPoint(-50, -50));
    settle();
}

void TablePage::type(const QString& text) {
    typeText(handle(), text);
    settle();
}

void TablePage::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&handle(), key, modifiers);
    settle();
}

void TablePage::hold(Qt::Key key, int repeats) {
    QTest::keyPress(&handle(), key);
    for (int i = 0; i < repeats; ++i) {
        QKeyEvent again(QEvent::KeyPress, key, {}, QString(), true);
        QCoreApplication::sendEvent(&view(), &again);
    }
    QTest::keyRelease(&handle(), key);
    settle();
}

void TablePage::pick(const char* key, const char* word, const char* value) {
    click(QStringLiteral(".SumoSelect[dockey=\"%1\"] p.wren_livecontrol_%2").arg(key, word));
    const int place = number(
        QStringLiteral("$('.wren-dropdown option').get().findIndex(option => option.value === '%1')").arg(value));
    click(QStringLiteral(".wren-dropdown .options li:nth-child(%1)").arg(place + 1));
}

QStringList TablePage::made(const QString& names, const std::function<void()>& work) {
    run(QStringLiteral("probe.callsBegin(); return 0"));
    work();
    settle();
    return list(QStringLiteral("probe.callsEnd().filter(call => /%1/.test(call[0]))"
                               ".map(call => [call[0]].concat(call[1]).join(' '))")
                    .arg(names));
}

QWindow& TablePage::handle() {
    return *window().windowHandle();
}

QWebView& TablePage::view() {
    return *window().findChild<QWebView*>();
}

QStringList commands(TestHost& test, TablePage& page, const std::function<void()>& work) {
    test.calls();
    work();
    page.settle();
    // Not what brings the images up to date.
    return test.calls("^ZebCameraOps::|^DOC_.*::set|Docs$");
}

void choose(TestHost& test, const QStringList& keys) {
    for (Camera* camera : test.host.cameras().all()) {
        camera->set(&CameraState::selected, keys.contains(QString::number(camera->key())));
    }
}

QStringList camerasWith(TestHost& test, bool CameraState::*property) {
    QStringList keys;
    for (const Camera* camera : test.host.cameras().all()) {
        if (camera->get(property)) {
            keys << QString::number(camera->key());
        }
    }
    return keys;
}

void connectCameras(TestHost& test, DOCKEY first, DOCKEY last) {
    for (DOCKEY key = first; key <= last; ++key) {
        test.camera(key).set(&CameraState::connected, true);
    }
}
