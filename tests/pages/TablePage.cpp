#include "TablePage.h"

#include "HostPages.h"
#include "PageScript.h"
#include "ScenarioError.h"

#include <QDialog>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QWebFrame>
#include <QWebView>

#include <gtest/gtest.h>

#include <iostream>

namespace {

constexpr int AnHour = 3600 * 1000;
/// A page that takes longer hangs.
constexpr int GiveUpMs = 60000;

/// Nobody sees a script's error but the log.
void watchLog(QtMsgType type, const QMessageLogContext&, const QString& line) {
    if (line.contains(QLatin1String("[USER][ERROR]"))) {
        ADD_FAILURE() << line.toStdString();
    } else if (type != QtDebugMsg && type != QtInfoMsg) {
        std::cerr << line.toStdString() << '\n';
    }
}

TestHost& prepared(TestHost& test) {
    initHostPages();
    qInstallMessageHandler(watchLog);
    test.host.prefs().setValue(QStringLiteral("wren/table/interval"), AnHour);
    test.host.prefs().setValue(QStringLiteral("wren/table/w"), 1700);
    test.host.prefs().setValue(QStringLiteral("wren/table/h"), 1000);
    return test;
}

}  // namespace

TablePage::TablePage(TestHost& test, int tab)
    : m_test(prepared(test)), m_loader(QStringLiteral(WREN_LIBRARY), test.host), m_slot(test.host, m_loader.plugin()) {
    m_slot.open();
    settle();
    QFile probe(QStringLiteral(":/page_test/probe.js"));
    EXPECT_TRUE(probe.open(QIODevice::ReadOnly));
    view().page()->mainFrame()->evaluateJavaScript(QString::fromUtf8(probe.readAll()));
    show(tab);
}

TablePage::~TablePage() {
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

bool TablePage::until(const QString& script) {
    return QTest::qWaitFor([&] { return run(script).toBool(); }, GiveUpMs);
}

void TablePage::settle() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_test.host.updates().isPending(); }, GiveUpMs));
}

void TablePage::update() {
    m_test.host.updates().request();
    settle();
}

void TablePage::click(const QString& selector, Qt::KeyboardModifiers modifiers) {
    ClickOptions options;
    options.modifiers = modifiers;
    try {
        PageInput(view(), [] { return false; }).click(selector, options);
    } catch (const ScenarioError& e) {
        ADD_FAILURE() << e.what();
    }
    settle();
}

QWebView& TablePage::view() {
    return *window().findChild<QWebView*>();
}

void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

void PrintTo(const QStringList& list, std::ostream* out) {
    *out << "\n" << list.join(QLatin1Char('\n')).toStdString() << "\n";
}

void choose(TestHost& test, const QStringList& keys) {
    for (Camera* camera : test.host.cameras().all()) {
        camera->set(&CameraState::selected, keys.contains(QString::number(camera->key())));
    }
}

void connectCameras(TestHost& test, DOCKEY first, DOCKEY last) {
    for (DOCKEY key = first; key <= last; ++key) {
        test.camera(key).set(&CameraState::connected, true);
    }
}
