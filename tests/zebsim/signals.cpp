#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "SignalHub.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <future>
#include <thread>

namespace {

const QString MasterHub = QStringLiteral("192.168.0.61");
const QString OtherHub = QStringLiteral("192.168.0.62");

/// Hands the cameras over as the table does: external by its frequency or by the hubs, or a chain.
struct Handover {
    int lport = zeb::SyncPortNone;
    bool external = false;
    bool generator = false;
    int frequency = -1;
};

constexpr Handover chain{};
constexpr Handover throughHubs{zeb::SyncPortHub, true, false, 1000};

Handover external(int frequency) {
    return {zeb::SyncPortNone, true, false, frequency};
}

/// Keys: 1 Gate, 2 Ramp, 3 and 4 the nozzle heads, 5 Roof, 6 Track, 7 Impact, 8 Wing; all at 1000 frames a second.
class Signals : public testing::Test {
protected:
    Signals() {
        for (DOCKEY key = 1; key <= 8; ++key) {
            test.camera(key).set(&CameraState::connected, true);
        }
        test.clock.join();
    }

    void synchronise(const DocKeyList& keys, const Handover& how, DOCKEY master = 1) {
        ops.syncCameras(test.docs(keys), test.doc(master), how.lport, how.external, how.generator, 0, how.frequency, 1);
    }
    std::string status(DOCKEY key) { return test.doc(key)->control().getSyncStatusText().toStdString(); }
    int openAndSearch() {
        hubs.open(1);
        return hubs.search(3, 1);
    }
    void plant(DOCKEY key, const char* operation, const char* text) {
        test.host.faults().plant(key, QString::fromLatin1(operation), Fault{QString::fromUtf8(text)});
    }
    SignalHub& hub(const QString& address) { return *hubs.hub(address); }

    TestHost test{readRig(QStringLiteral("sync"))};
    SimSignalDevices& hubs = test.host.signalDevices();
    ZebCameraOps& ops = test.host.cameraOps();
};

TEST_F(Signals, ASearchConnectsTheHubsThatAnswer) {
    EXPECT_EQ(hubs.search(3, 1), 0) << "nothing is open";
    EXPECT_EQ(hubs.findByAddress(MasterHub), nullptr);
    EXPECT_EQ(openAndSearch(), 2);
    EXPECT_EQ(test.clock.join(), 30 + 30) << "opening and searching wait for the slowest";
    ZebSignalDevice* master = hubs.findByAddress(MasterHub);
    ASSERT_NE(master, nullptr);
    EXPECT_EQ(master->getRole(), zeb::HubRoleMaster);
    EXPECT_NE(hubs.findByAddress(OtherHub)->getRole(), zeb::HubRoleMaster);
    EXPECT_EQ(hubs.findByAddress("192.168.0.11"), nullptr) << "a camera is no hub";

    hub(MasterHub).change({{"found", false}});
    EXPECT_FALSE(master->isConnected()) << "unplugged";
    EXPECT_EQ(thrownBy([&] { master->getFrequency(); }), "Sync Hub 192.168.0.61: the hub is not connected");
    EXPECT_EQ(openAndSearch(), 1);
    EXPECT_EQ(hubs.findByAddress(MasterHub), nullptr);

    hub(MasterHub).change({{"found", true}});
    plant(hub(OtherHub).key(), "search", "no answer");
    EXPECT_EQ(openAndSearch(), 1);
    EXPECT_NE(hubs.findByAddress(MasterHub), nullptr);
    hubs.close();
    EXPECT_EQ(hubs.findByAddress(MasterHub), nullptr);
    test.host.setRig(standardRig(1));
    EXPECT_EQ(openAndSearch(), 0);
}

TEST_F(Signals, CamerasSeeTheSignalThatTheyWereSynchronisedWith) {
    int generator = -1;
    test.host.syncSignal().setGenerator([&] { return generator; });
    const Fault Gone{{}, 0, true};
    const auto hubIs = [this](const char* member, const QVariant& value) {
        return [=] { hub(MasterHub).change({{QLatin1String(member), value}}); };
    };
    const struct {
        const char* what;
        Handover how;
        std::function<void()> later;
        const char* status;
    } cases[] = {
        {"a signal as fast as the camera", external(1000), {}, "Sync In"},
        {"a slower one", external(999), {}, "Sync In"},
        {"a faster one", external(1001), {}, "Over Sync"},
        {"one of which nobody knows the frequency", external(-1), {}, "No Sync"},
        {"a generator wins over the hubs", {zeb::SyncPortHub, true, true, 2000}, {}, "Over Sync"},
        {"the camera gets slower", external(1000), [&] { test.camera(2).setRecordRate(500); }, "Over Sync"},
        {"the generator is switched on later", external(-1), [&] { generator = 1000; }, "Sync In"},
        {"it is set faster", external(1000), [&] { generator = 1001; }, "Over Sync"},
        {"it is switched off", external(1000), [&] { generator = 0; }, "No Sync"},
        {"a hub", throughHubs, {}, "Sync In"},
        {"the hub gets another frequency", throughHubs, hubIs("frequency", 2000), "Over Sync"},
        {"the hub is unplugged", throughHubs, hubIs("found", false), "No Sync"},
        {"the hub falls silent", throughHubs, hubIs("frequency", 0), "No Sync"},
        {"the hub only passes on", throughHubs, hubIs("role", 1), "No Sync"},
        {"a chain", chain, {}, "Sync In"},
        {"the master of the chain gets faster", chain, [&] { test.camera(1).setRecordRate(2000); }, "Over Sync"},
        {"the master is disconnected", chain, [&] { test.camera(1).disconnect(); }, "No Sync"},
        {"the master is gone", chain, [&] { test.host.faults().plant(1, "*", Gone); }, "No Sync"},
    };
    test.camera(2).change({{"syncStatus", "Not supported"}});
    EXPECT_EQ(status(2), "Not supported") << "never synchronised";
    for (const auto& row : cases) {
        test.host.setRig(readRig(QStringLiteral("sync")));
        for (const DOCKEY key : {1, 2}) {
            test.camera(key).set(&CameraState::connected, true);
        }
        generator = -1;
        synchronise({1, 2}, row.how);
        if (row.later) {
            row.later();
        }
        EXPECT_EQ(status(2), row.status) << row.what;
    }
}

TEST_F(Signals, SynchronisingTakesItsTimeAndOneCall) {
    synchronise({7, 1, 5}, external(1000), 7);
    EXPECT_EQ(test.clock.join(), 20 + 40 + 80) << "one camera after the other";
    EXPECT_EQ(test.calls(), QStringList{"syncCameras 7,1,5 7 0 true false 0 1000 1"});
}

TEST_F(Signals, OnlyCamerasThatAreThereCanBeSynchronised) {
    const auto canSync = [&] { return ops.canSync(test.docs({1, 2, 5})); };
    EXPECT_TRUE(canSync());
    test.camera(8).set(&CameraState::connected, false);
    EXPECT_TRUE(canSync()) << "not of the list";
    test.host.flags().set("IsSaving", true);
    EXPECT_FALSE(canSync()) << "saving";
    test.host.flags().set("IsSaving", false);
    const DocList docs = test.docs({1, 2});
    test.host.faults().plant(2, "*", {{}, 0, true});
    EXPECT_FALSE(ops.canSync(docs)) << "gone";
    test.host.faults().clear();
    test.camera(1).disconnect();
    EXPECT_FALSE(canSync()) << "disconnected";
}

/// A clock on which the first wait of a thread lasts until it is let go.
class HeldClock : public SteppedClock {
public:
    void wait(qint64 ms) override {
        SteppedClock::wait(ms);
        if (!m_held.exchange(true)) {
            reached.set_value();
            letGo.get_future().wait();
        }
    }

    std::promise<void> reached;
    std::promise<void> letGo;

private:
    std::atomic<bool> m_held{false};
};

TEST(Synchronising, OutlivesTheRigThatItBeganWith) {
    QTemporaryDir folder;
    ScriptedDesk desk;
    HeldClock clock;
    SimHost host(clock, desk, folder.filePath(QStringLiteral("prefs.ini")));
    host.setRig(standardRig(3));
    for (Camera* camera : host.cameras().all()) {
        camera->set(&CameraState::connected, true);
    }
    const DocList docs = host.docManager().getCameraDocs();
    std::string thrown;
    std::thread worker([&] {
        thrown = thrownBy([&] { host.cameraOps().syncCameras(docs, docs.first(), 0, false, false, 0, -1, 1); });
    });
    clock.reached.get_future().wait();
    host.cameras().forgetAll();
    host.setRig(standardRig(1));
    EXPECT_EQ(docs.last()->getKey(), 3u) << "documents that are worked with tell their keys";
    clock.letGo.set_value();
    worker.join();
    EXPECT_EQ(thrown, "");
    EXPECT_EQ(host.cameras().find(1)->get(&CameraState::syncSource), "") << "it was another camera";
}

}  // namespace
