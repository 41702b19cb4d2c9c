#include "Course.h"
#include "PluginSlot.h"
#include "Until.h"
#include "ZebPageBridge.h"
#include "support/StubPlugin.h"
#include "support/TestHost.h"

#include <QDialog>
#include <QPointer>
#include <QSignalSpy>
#include <QWebFrame>
#include <QWebView>

#include <gtest/gtest.h>

namespace {

class CountingBridge : public ZebPageBridge {
public:
    QString bridgeName() const override { return QStringLiteral("counter"); }
    void setView(QWebView* newView) override { view = newView; }
    void addPrefsJSObject() override {
        view->page()->mainFrame()->addToJavaScriptWindowObject(QStringLiteral("prefs"), this, QWebFrame::QtOwnership);
    }
    void raiseUpdate() override {
        ++updates;
        if (onUpdate) {
            onUpdate();
        }
    }

    QWebView* view = nullptr;
    int updates = 0;
    std::function<void()> onUpdate;
};

class Updates : public testing::Test {
protected:
    void load(QWebView& view) {
        QSignalSpy loaded(&view, &QWebView::loadFinished);
        view.setHtml(QStringLiteral("<script>var seen = typeof counter + typeof prefs;</script>"));
        ASSERT_TRUE(!loaded.isEmpty() || loaded.wait());
    }
    /// Lets what was asked for happen.
    void settle() {
        EXPECT_TRUE(until([this] { return !host.updates().isPending(); }));
    }

    TestHost test;
    SimHost& host = test.host;
    QSignalSpy cycles{&host.events(), &HostEvents::updateFinished};
};

}  // namespace

TEST_F(Updates, AreOneCycleFromTheEventLoopUnlessTheyAreDeterred) {
    StubPlugin plugin;
    const PluginSlot slot(host, plugin);
    const auto request = [this] { host.updateUI(zeb::UpdateAll, true); };
    const struct {
        const char* what;
        std::function<void()> act;
        int cycles;
    } rows[] = {
        {"two requests", [&] { request(), request(); }, 1},
        {"asked for before, held back", [&] { request(), host.deterUpdateUI(true), host.deterUpdateUI(true); }, 0},
        {"still deterred once", [&] { request(), host.deterUpdateUI(false); }, 0},
        {"after the last end", [&] { host.deterUpdateUI(false); }, 1},
        {"nothing was asked for", [&] { host.deterUpdateUI(true), host.deterUpdateUI(false); }, 0},
        {"a request inside a cycle is the next one",
         [&] {
             plugin.onUpdate = [&] {
                 plugin.onUpdate = nullptr;
                 request();
             };
             request();
         },
         2},
    };
    for (const auto& row : rows) {
        cycles.clear();
        row.act();
        EXPECT_EQ(cycles.count(), 0) << row.what << ": not inside the call";
        for (int turn = 0; turn < 4; ++turn) {
            QCoreApplication::processEvents();
        }
        EXPECT_EQ(cycles.count(), row.cycles) << row.what;
    }
}

TEST_F(Updates, ReachPluginsAndLoadedBridgesOnceEach) {
    StubPlugin plugin;
    plugin.dialog = std::make_unique<QDialog>();
    const PluginSlot slot(host, plugin);
    auto* inner = new QWebView(plugin.dialog.get());
    QWebView outer;
    QWebView unloaded;
    CountingBridge innerBridge;
    CountingBridge outerBridge;
    CountingBridge unloadedBridge;
    host.attachBridge(inner, &innerBridge);
    host.attachBridge(&outer, &outerBridge);
    host.attachBridge(&unloaded, &unloadedBridge);
    load(*inner);
    load(outer);

    host.appStatus().enterMode(zeb::MemoryMode);
    settle();
    EXPECT_EQ(plugin.updates, 1);
    EXPECT_EQ(plugin.updateMode, zeb::MemoryMode);
    EXPECT_EQ(innerBridge.updates, 0) << "its plug-in has told it";
    EXPECT_EQ(outerBridge.updates, 1);
    EXPECT_EQ(unloadedBridge.updates, 0);
    EXPECT_EQ(outer.page()->mainFrame()->evaluateJavaScript(QStringLiteral("seen")).toString(),
              QStringLiteral("objectobject"))
        << "the page's first script found both names";
}

TEST_F(Updates, SurviveTheDeathOfBridgesAndViewsInTheirMidst) {
    auto view = std::make_unique<QWebView>();
    auto bridge = std::make_unique<CountingBridge>();
    CountingBridge killer;
    QWebView killersView;
    host.attachBridge(&killersView, &killer);
    host.attachBridge(view.get(), bridge.get());
    load(killersView);
    load(*view);
    killer.onUpdate = [&] {
        bridge.reset();
        view.reset();
    };
    host.updateUI(63, true);
    settle();
    host.updateUI(63, true);
    settle();
    EXPECT_EQ(killer.updates, 2);
}

TEST_F(Updates, AFailureOfOneIsToldOnceBesideTheWorkAndTheOthersGetTheirs) {
    StubPlugin bad;
    StubPlugin good;
    std::string failure = "page is broken";
    bad.onUpdate = [&] {
        if (!failure.empty()) {
            throw std::runtime_error(failure);
        }
    };
    const PluginSlot badSlot(host, bad);
    const PluginSlot goodSlot(host, good);
    Course log;
    for (const char* next : {"page is broken", "page is broken", "", "page is broken", "another"}) {
        failure = next;
        host.updateUI(63, true);
        settle();
    }
    const QStringList told{"page is broken", "page is broken", "another"};
    EXPECT_EQ(test.desk.beside, told) << "not again until it went well";
    EXPECT_EQ(test.desk.shown.size(), told.size()) << "nobody is kept from working";
    EXPECT_EQ(log.take().filter("critical").size(), told.size());
    EXPECT_EQ(good.updates, 5);
}

TEST_F(Updates, AnEmptyRefusalOfTheButtonIsSilent) {
    StubPlugin plugin;
    PluginSlot slot(host, plugin);
    EXPECT_EQ(host.appStatus().getPlugin(QStringLiteral("stub")), &plugin);
    plugin.refusal = std::string();
    slot.open();
    EXPECT_TRUE(test.desk.shown.isEmpty());
    plugin.refusal = "no licence";
    slot.open();
    EXPECT_EQ(test.desk.texts(), QStringList{QStringLiteral("no licence")});
    EXPECT_EQ(plugin.log.join(QLatin1Char(' ')), QStringLiteral("prepareOpen prepareOpen"));

    plugin.log.clear();
    host.appStatus().closePlugin(QStringLiteral("stub"));
    host.appStatus().closePlugin(QStringLiteral("unknown"));
    EXPECT_EQ(plugin.log.join(QLatin1Char(' ')), QStringLiteral("deactivate"));
}
