#include "Camera.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "HostBatch.h"
#include "HostWindows.h"
#include "ParallelRows.h"
#include "RigFile.h"
#include "ZebLeftOut.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <condition_variable>

namespace {

/// Time stands while it is open. While it is shut cameras wait, and each look at the clock is a quarter of a second
/// later.
class GatedClock : public Clock {
public:
    qint64 now() const override {
        const std::lock_guard lock(m_mutex);
        m_now += m_open ? 0 : 250;
        return m_now;
    }
    void wait(qint64 ms) override {
        if (ms > 0) {
            std::unique_lock lock(m_mutex);
            m_opened.wait(lock, [this] { return m_open; });
        }
    }
    void set(bool open) {
        const std::lock_guard lock(m_mutex);
        m_open = open;
        m_opened.notify_all();
    }
    void advance(qint64 ms) {
        const std::lock_guard lock(m_mutex);
        m_now += ms;
    }

private:
    mutable std::mutex m_mutex;
    mutable qint64 m_now = 0;
    std::condition_variable m_opened;
    bool m_open = true;
};

/// Three of eight cameras vanish while all of them keep a command waiting.
class SlowCommands : public testing::Test, public HostWindows {
protected:
    SlowCommands() { host.setWindows(this); }

    void waitForRows(ParallelRows& rows, const QStringList& names) override {
        awaited = names.size() == int(rows.unfinished().size()) ? names : QStringList();
        for (DOCKEY key = 1; key <= 3; ++key) {
            host.faults().plant(key, "*", {{}, 0, true});
        }
        clock.set(true);
        HostWindows::waitForRows(rows, names);
    }
    void armAll() {
        host.recorder().startRecReady();
        clock.advance(500);
        host.recorder().proceed();
    }
    DocList docs() { return host.docManager().getCameraDocs(); }
    DocKeyList keys() { return host.cameras().keys(); }

    QTemporaryDir folder;
    GatedClock clock;
    ScriptedDesk desk;
    SimHost host{clock, desk, folder.filePath("prefs.ini")};
    QStringList awaited;
};

TEST_F(SlowCommands, ReachTheCamerasThatAreLeft) {
    const struct {
        const char* name;
        std::function<void()> before;
        std::function<void()> give;
        std::function<bool(const Camera&)> done;
    } rows[] = {
        {"connect", [&] { host.docManager().disconnectDocs(keys()); }, [&] { host.docManager().connectDocs(keys()); },
         [](const Camera& camera) { return camera.get(&CameraState::connected); }},
        {"disconnect", [] {}, [&] { host.docManager().disconnectDocs(keys()); },
         [](const Camera& camera) { return !camera.get(&CameraState::connected); }},
        {"rate", [] {}, [&] { host.cameraOps().setRecordRate(docs(), 500); },
         [](const Camera& camera) { return camera.get(&CameraState::rate) == 500; }},
        {"shutter", [] {}, [&] { host.cameraOps().setShutterSpeed(docs(), 2000); },
         [](const Camera& camera) { return camera.get(&CameraState::shutter) == 2000; }},
        {"resolution", [] {}, [&] { host.cameraOps().setResolution(docs(), 512, 256); },
         [](const Camera& camera) { return camera.get(&CameraState::resolution) == QSize(512, 256); }},
        {"trigger mode", [] {}, [&] { host.cameraOps().setTriggerMode(docs(), 1, zeb::TriggerCenter, 0, 0, 50, 0, 0); },
         [](const Camera& camera) { return camera.get(&CameraState::triggerMode) == zeb::TriggerCenter; }},
        {"low light", [] {}, [&] { host.cameraOps().setLowLight(docs(), true); },
         [](const Camera& camera) { return camera.get(&CameraState::lowLight); }},
        {"arm", [] {}, [&] { host.recorder().startRecReady(); },
         [](const Camera& camera) { return camera.recordState() == zeb::RecordReady; }},
        {"trigger", [&] { armAll(); }, [&] { host.recorder().triggerRecording(); },
         [](const Camera& camera) { return camera.recordState() == zeb::RecordRecording; }},
        {"stop",
         [&] {
             armAll();
             host.recorder().triggerRecording();
         },
         [&] { host.recorder().stopRecording(); },
         [](const Camera& camera) { return camera.recordState() == zeb::RecordLive && camera.recording(); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        host.setRig(connected(8));
        QCoreApplication::processEvents();
        row.before();
        clock.set(false);
        awaited.clear();
        row.give();
        EXPECT_EQ(awaited.size(), 8);
        const auto left = host.cameras().all();
        EXPECT_EQ(left.size(), 5u);
        for (const Camera* camera : left) {
            EXPECT_TRUE(row.done(*camera)) << camera->name().toStdString();
        }
    }
}

TEST_F(SlowCommands, LeaveWhoWasNotReachedAsItWas) {
    struct Cancelling : HostWindows {
        GatedClock* clock;
        void waitForRows(ParallelRows& rows, const QStringList& names) override {
            while (rows.waiting().size() > 2) {
                std::this_thread::yield();
            }
            rows.leaveOutWaiting();
            clock->set(true);
            HostWindows::waitForRows(rows, names);
        }
    } cancelling;
    cancelling.clock = &clock;
    host.setWindows(&cancelling);
    host.setRig(connected(130));
    const auto slowly = [&](auto&& command) {
        clock.set(false);
        command();
    };
    const auto lastState = [&] { return host.cameras().find(130)->recordState(); };

    DocKeyList leftOut;
    slowly([&] {
        try {
            host.cameraOps().setRecordRate(docs(), 500);
        } catch (const ZebLeftOut& cancelled) {
            leftOut = cancelled.keys();
        }
    });
    EXPECT_EQ(leftOut, (DocKeyList{129, 130}));
    EXPECT_EQ(host.cameras().find(128)->get(&CameraState::rate), 500u);
    EXPECT_EQ(host.cameras().find(129)->get(&CameraState::rate), 1000u);

    slowly([&] { host.recorder().startRecReady(); });
    EXPECT_EQ(lastState(), zeb::RecordLive);
    host.recorder().cancelRecording(false);
    QCoreApplication::processEvents();
    armAll();
    slowly([&] { host.recorder().cancelRecording(false); });
    EXPECT_EQ(lastState(), zeb::RecordReady);
    EXPECT_EQ(host.recorder().getRecordingState(), zeb::RecordReady) << "there is something to cancel still";
    armAll();
    slowly([&] { host.recorder().triggerRecording(); });
    EXPECT_EQ(lastState(), zeb::RecordReady);
    EXPECT_EQ(host.cameras().find(1)->recordState(), zeb::RecordRecording);
    host.setWindows(nullptr);
}

TEST_F(SlowCommands, DocumentsAnswerOtherThreadsWhenTheRigIsAnother) {
    host.setRig(connected(8));
    const DocList documents = docs();
    clock.set(false);
    const ParallelRows rows(documents.size(), [&documents](int row) {
        documents.at(row)->control().setLowLightMode(documents.at(row)->isConnected());
    });
    host.setRig(connected(2));
    clock.set(true);
    EXPECT_TRUE(rows.waitFor(60000));
    for (int row = 0; row < documents.size(); ++row) {
        EXPECT_FALSE(rows.failureOf(row));
        EXPECT_TRUE(documents.at(row)->control().isLowLightMode()) << row;
    }
}

TEST_F(SlowCommands, EndWellWhenTheRigIsAnother) {
    struct Replacing : HostWindows {
        SimHost* host;
        GatedClock* clock;
        void waitForRows(ParallelRows& rows, const QStringList& names) override {
            host->setRig(connected(2));
            host->recorder().press();
            clock->set(true);
            HostWindows::waitForRows(rows, names);
        }
    } replacing;
    replacing.host = &host;
    replacing.clock = &clock;
    host.setRig(connected(8));
    host.setWindows(&replacing);
    clock.set(false);
    host.recorder().startRecReady();
    for (const Camera* camera : host.cameras().all()) {
        EXPECT_FALSE(camera->isArmed()) << "a command of the former cameras is under way";
    }
    host.setWindows(nullptr);
}

}  // namespace
