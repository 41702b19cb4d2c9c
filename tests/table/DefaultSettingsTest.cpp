#include "GUI_WrenDefaultSettingsDialog.h"
#include "TableDefaults.h"
#include "TableFixture.h"

#include <QApplication>
#include <QTimer>

using namespace defaultsettings;

namespace {

/// Groups as "name=address,address" each.
QStringList shown(const QList<CameraGroup>& groups) {
    QStringList texts;
    for (const CameraGroup& group : groups) {
        texts.append(group.name % QLatin1Char('=') % group.members.join(QLatin1Char(',')));
    }
    return texts;
}

TEST(TableDefaults, Groups) {
    struct Case {
        const char* told;
        const char* text;
        QStringList groups;
    };
    const Case cases[] = {
        {"nothing stored is no group", "", {}},
        {"the name, then the addresses",
         "Gate|10.0.0.1|10.0.0.2:Ramp|10.0.0.3",
         {"Gate=10.0.0.1,10.0.0.2", "Ramp=10.0.0.3"}},
        {"a group may be empty", "Spare", {"Spare="}},
        {"a colon too many is no group", ":Gate|10.0.0.1::", {"Gate=10.0.0.1"}},
        {"a group without a name can't be chosen", "|10.0.0.1:Ramp", {"Ramp="}},
        {"markup is a name like any other", "<b>|1.1.1.1", {"<b>=1.1.1.1"}},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(shown(readGroups(each.text)), each.groups) << each.told;
    }
}

TEST(TableDefaults, ListsAndAreas) {
    EXPECT_EQ(readNumbers("500::fast:0:1000|"), (QStringList{"500", "1000"}));
    EXPECT_EQ(readResolutions("1280|800:640|480:320"), (QStringList{"1280 x 800", "640 x 480"}))
        << "an entry without a height is none";
    const RecordAreas areas = readAreas("1000|0|99:2000|10|20:1000|5|50:500|1");
    EXPECT_EQ(areas, (RecordAreas{{1000, {5, 50}}, {2000, {10, 20}}})) << "the later entry of a rate wins";
}

class DefaultSettingsTest : public BridgeFixture {
protected:
    void store(const QMap<QString, QVariant>& settings) {
        for (auto entry = settings.begin(); entry != settings.end(); ++entry) {
            host.setPref(QStringLiteral("wren/settings/") % entry.key(), entry.value());
        }
    }

    /// Stores all lists, switched on or not.
    void storeAll(bool on) {
        store({{"groups", "Gates|192.168.0.11|192.168.0.12:Roof|192.168.0.14"},
               {"frameRatesEnable", on},
               {"frameRates", "500:1000"},
               {"shutterSpeedsEnable", on},
               {"shutterSpeeds", "1000:5000"},
               {"resolutionsEnable", on},
               {"resolutions", "1024|1024:512|512"},
               {"externalSyncSignalsEnable", on},
               {"externalSyncSignal", 250},
               {"externalSyncSignals", "125:250"},
               {"areasEnable", on},
               {"areas", "1000|0|99"}});
    }
};

TEST_F(DefaultSettingsTest, EveryOpeningReadsThemAnew) {
    connectAll();
    storeAll(true);
    makeBridge();
    const TableState& state = bridge->state();
    EXPECT_EQ(shown(state.groups), (QStringList{"Gates=192.168.0.11,192.168.0.12", "Roof=192.168.0.14"}));
    EXPECT_EQ(bridge->getGroup(), "Gates");
    EXPECT_EQ(state.allowed.frameRates, (QStringList{"500", "1000"}));
    EXPECT_EQ(state.allowed.resolutions, (QStringList{"1024 x 1024", "512 x 512"}));
    EXPECT_EQ(state.allowed.shutterSpeeds, (QStringList{"1000", "5000"}));
    EXPECT_EQ(state.sync.frequency, 250);
    EXPECT_EQ(state.sync.offered, (QStringList{"125", "250"}));
    EXPECT_EQ(state.areas, (RecordAreas{{1000, {0, 99}}}));

    bridge->onClose();
    storeAll(false);
    bridge->onOpen();
    EXPECT_EQ(state.allowed.frameRates + state.allowed.resolutions + state.allowed.shutterSpeeds, QStringList());
    EXPECT_TRUE(state.sync.offered.isEmpty());
    EXPECT_TRUE(state.areas.isEmpty());
    EXPECT_EQ(state.sync.frequency, 250) << "the frequency stays as it was";
    EXPECT_EQ(state.groups.size(), 2) << "groups have no switch";
}

TEST_F(DefaultSettingsTest, ACameraThatIsArmedKeepsTheTableAsItIs) {
    connectAll();
    storeAll(true);
    for (const int recordState : {2, 3}) {
        change(2, {{"recordState", recordState}});
        makeBridge();
        EXPECT_TRUE(bridge->state().groups.isEmpty());
        EXPECT_TRUE(bridge->state().allowed.frameRates.isEmpty());
    }
    change(2, {{"recordState", 1}});
    makeBridge();
    EXPECT_EQ(bridge->state().groups.size(), 2);

    host.appStatus().enterMode(zeb::FileMode);
    makeBridge();
    EXPECT_TRUE(bridge->state().groups.isEmpty());
    EXPECT_FALSE(host.liveLoop().isLivePaused()) << "the loop goes on, whichever way the reading ends";
}

TEST_F(DefaultSettingsTest, AreAskedForUntilTheyAreAccepted) {
    const QString done = "wren/settings/done";
    connectAll();
    storeAll(true);
    host.setPrefBool(done, false);
    int asked = 0;
    std::function<void(QDialog&)> answer = [](QDialog& dialog) { dialog.reject(); };
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (auto* dialog = qobject_cast<GUI_WrenDefaultSettingsDialog*>(QApplication::activeModalWidget())) {
            ++asked;
            answer(*dialog);
        }
    });
    look.start(1);
    makeBridge();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(bridge->state().groups.isEmpty());
    EXPECT_FALSE(host.getPrefBool(done));

    change(2, {{"recordState", zeb::RecordReady}});
    makeBridge();
    EXPECT_EQ(asked, 1) << "a dialog keeps nobody from a recording";
    change(2, {{"recordState", zeb::RecordLive}});

    answer = [this](QDialog& dialog) {
        host.appStatus().enterMemoryMode();
        dialog.accept();
    };
    makeBridge();
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(bridge->state().groups.size(), 2);
    EXPECT_TRUE(host.getPrefBool(done));
    EXPECT_NE(stateOf(1, "lowLightType").toInt(), zeb::LowLightTypeFine) << "it is not live mode any more";

    bridge->openDefaultSettingsDialog();
    EXPECT_EQ(asked, 3);
    host.appStatus().enterMode(zeb::FileMode);
    bridge->openDefaultSettingsDialog();
    EXPECT_EQ(asked, 3) << "not in file mode";
}

}  // namespace
