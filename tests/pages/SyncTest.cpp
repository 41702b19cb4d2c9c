#include "TablePage.h"

#include <QApplication>

#include <memory>

// The area of the signal from outside, with hubs of the host, and with the scripted generator behind the real library.

namespace {

const QString Hub = QStringLiteral("192.168.0.91");
const QString Passing = QStringLiteral("192.168.0.92");

/// The sources that the area shows, + for a connected one; the frequencies with the chosen one in brackets; "go" when
/// the cameras can be synchronised.
const char* Shown = R"js(
    if (!$('#external_sync_area').is(':visible')) {
        return 'hidden';
    }
    const source = (id, name) => $(id).is(':visible') ? name + ($(id).hasClass('connected') ? '+' : '') : '';
    const selector = document.getElementById('externalSyncSelector');
    const frequencies = !$(selector).is(':visible') ? '' : Array.from(selector.options).map((option, index) =>
        option.value !== option.text ? '?' : index === selector.selectedIndex ? `[${option.text}]` : option.text).join();
    return [source('#connect_signal_generator', 'generator'), source('#connect_signal_distributor', 'hub'), frequencies,
        $('#sync_execute').is(':disabled') ? '' : 'go'].filter(word => word).join(' ');
)js";

Rig laboratory() {
    Rig rig = standardRig(2);
    rig.hubs = {{Hub, {zeb::HubRoleMaster, 1000, {500, 1000, 2000}}}, {Passing, {1, 1000, {500, 1000, 2000}}}};
    return rig;
}

class PageSync : public testing::Test {
protected:
    PageSync() {
        pref("wren/settings/syncInEnable", true);
        pref("sync/external", true);
        connectCameras(test, 1, 2);
    }

    void pref(const char* key, const QVariant& value) { test.host.prefs().setValue(QLatin1String(key), value); }
    void useHubs() {
        pref("sync/lport", zeb::SyncPortHub);
        pref("sync/lport/ipaddress", QString(Hub % ',' % Passing));
    }
    void open() { page = std::make_unique<TablePage>(test); }
    QString shown() {
        page->tick();
        return page->text(Shown);
    }
    /// The calls that change something and that the page makes while `work` lasts.
    QStringList made(const std::function<void()>& work) { return page->made("^(connect|set)", work); }
    /// Opens the list of frequencies by the mouse.
    void openList() {
        page->click("#externalSyncSelector");
        ASSERT_TRUE(isListOpen());
    }
    static bool isListOpen() { return QApplication::activePopupWidget() != nullptr; }

    TestHost test{laboratory()};
    std::unique_ptr<TablePage> page;
};

TEST_F(PageSync, ShowsWhatCanBeDone) {
    struct Case {
        const char* told;
        std::function<void()> change;
        const char* shown;
    };
    const auto hubIs = [this](const char* member, const QVariant& value) {
        return [=] { test.host.signalDevices().hub(Hub)->change({{QLatin1String(member), value}}); };
    };
    const auto inMode = [this](zeb::OperatingMode mode) { return [=] { page->enter(mode); }; };
    const Case cases[] = {
        {"without a source the cameras have the port's signal", [] {}, "go"},
        {"one camera is enough for a signal from outside",
         [this] { test.camera(2).set(&CameraState::connected, false); }, "go"},
        {"but not for a chain", [this] { pref("sync/external", false); }, ""},
        {"two are", [this] { connectCameras(test, 1, 2); }, "go"},
        {"a hub that is told but not connected",
         [this] {
             useHubs();
             pref("sync/external", true);
         },
         "hub go"},
        {"a connected hub", [this] { page->click("#connect_signal_distributor"); }, "hub+ 500,[1000],2000 go"},
        {"it runs at another frequency", hubIs("frequency", 2000), "hub+ 500,1000,[2000] go"},
        {"it makes no signal", hubIs("frequency", 0), "hub+ 500,1000,2000 go"},
        {"it offers others", hubIs("frequencies", QVariantList{700, 800}), "hub+ 700,800 go"},
        {"it is unplugged", hubIs("found", false), "hub+ go"},
        {"both are",
         [this] {
             test.host.signalDevices().hub(Passing)->change({{"found", false}});
         },
         "hub go"},
        {"no camera can be synchronised",
         [this] {
             for (const DOCKEY key : {1U, 2U}) {
                 test.camera(key).set(&CameraState::connected, false);
             }
         },
         "hub"},
        {"the user does not want to see it", [this] { pref("wren/display/externalSync", false); }, "hidden"},
        {"he does again", [this] { pref("wren/display/externalSync", true); }, "hub"},
        {"in memory mode there is no signal", inMode(zeb::MemoryMode), "hidden"},
        {"in live mode again", inMode(zeb::LiveMode), "hub"},
        {"synchronisation is out of use", [this] { pref("wren/settings/syncInEnable", false); }, "hidden"},
    };
    open();
    for (const Case& each : cases) {
        each.change();
        EXPECT_EQ(shown(), each.shown) << each.told;
        EXPECT_EQ(page->tick(), QStringList()) << "nothing is written when nothing has changed: " << each.told;
    }
}

TEST_F(PageSync, PassesEachChoiceOnOnce) {
    useHubs();
    open();
    ASSERT_EQ(shown(), "hub+ 500,[1000],2000 go");
    EXPECT_EQ(made([this] { page->click("#connect_signal_distributor"); }), QStringList("connectSignalDistributors"));
    const auto choose = [this](const QString& keys) {
        return made([&] {
            openList();
            page->type(keys);
        });
    };
    EXPECT_EQ(choose("2000\n"), QStringList("setSignalFrequency 2000"));
    EXPECT_EQ(shown(), "hub+ 500,1000,[2000] go");
    EXPECT_EQ(choose("500\x1b"), QStringList()) << "the list is left without a choice";
    EXPECT_EQ(shown(), "hub+ 500,1000,[2000] go");
    EXPECT_EQ(made([this] { page->click("#sync_execute"); }), QStringList("setSyncSettings"));
    EXPECT_EQ(test.desk.take().size(), 1) << "about the wiring";

    test.host.flags().set("IsRecording", true);
    page->tick();
    EXPECT_EQ(
        made([this] {
            for (const char* control : {"#connect_signal_distributor", "#sync_execute", "#externalSyncSelector"}) {
                page->click(control);
            }
        }),
        QStringList());
    EXPECT_FALSE(isListOpen());
    test.host.flags().set("IsRecording", false);
}

TEST_F(PageSync, KeepsAnOpenListUntilItIsAboutOtherFrequencies) {
    useHubs();
    open();
    SignalHub& hub = *test.host.signalDevices().hub(Hub);
    openList();
    hub.change({{"frequency", 500}});
    page->tick();
    page->update();
    EXPECT_TRUE(isListOpen()) << "cycles pass it";
    EXPECT_EQ(made([this] { page->type("2000\n"); }), QStringList("setSignalFrequency 2000"));

    openList();
    hub.change({{"frequencies", QVariantList{125, 250, 8000}}});
    EXPECT_EQ(made([this] {
                  page->tick();
                  page->type("2000\n");
              }),
              QStringList())
        << "what stood third is not what stands there now";
    EXPECT_FALSE(isListOpen());
    EXPECT_EQ(shown(), "hub+ 125,250,8000 go");

    openList();
    test.host.flags().set("IsRecording", true);
    EXPECT_EQ(made([this] {
                  page->tick();
                  page->type("8000\n");
              }),
              QStringList())
        << "recording has begun";
    test.host.flags().set("IsRecording", false);
    EXPECT_EQ(shown(), "hub+ 125,250,8000 go");
}

TEST_F(PageSync, TakesFrequenciesForText) {
    pref("wren/settings/externalSyncSignalsEnable", true);
    pref("wren/settings/externalSyncSignals", "<b>1</b>:1000:\"><img src=x onerror=alert(1)>");
    useHubs();
    open();
    EXPECT_EQ(shown(), "hub+ <b>1</b>,[1000],\"><img src=x onerror=alert(1)> go");
    EXPECT_EQ(page->number("$('#externalSyncSelector').find('b, img').length"), 0);
}

}  // namespace
