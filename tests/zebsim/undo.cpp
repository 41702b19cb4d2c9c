#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace {

/// Eight cameras of all models, connected; keys: 1 Gate, 2 Ramp, 3 and 4 the heads of one device, 5 Roof, 6 Track, 7
/// Impact, 8 Stand-in.
class Undo : public testing::Test {
protected:
    Undo() { begin(); }

    void begin() {
        Rig rig = readRig("eight-mixed");
        for (RigDevice& device : rig.devices) {
            for (CameraState& head : device.heads) {
                head.connected = true;
                head.locked = false;
                head.recordState = zeb::RecordLive;
                head.lowLight = false;
            }
        }
        test.host.setRig(rig);
    }

    QVariantMap settings() {
        QVariantMap all;
        for (const Camera* camera : test.host.cameras().known()) {
            all.insert(QString::number(camera->key()), camera->state().toPlain(CameraState::recordSettings()));
        }
        return all;
    }
    /// A step that sets the rate of all of them, whatever they say to it.
    void setRate(unsigned int rate, const QString& text = "Frame rate") {
        ZebUndo& undo = test.host.undo();
        undo.beginMacro(text);
        try {
            test.host.cameraOps().setRecordRate(test.docs({1, 2, 3, 4, 5, 6, 7, 8}), rate);
        } catch (const std::exception&) {
        }
        undo.endMacro();
    }
    /// A step that changes something of some of them.
    void change(const std::function<unsigned(unsigned)>& any) {
        QList<DOCKEY> keys;
        for (DOCKEY key = 1; key <= 8; ++key) {
            keys += any(3) == 0 ? QList<DOCKEY>() : QList<DOCKEY>{key};
        }
        ZebCameraOps& cameras = test.host.cameraOps();
        ZebUndo& undo = test.host.undo();
        const DocList docs = test.docs(keys);
        undo.beginMacro("A step");
        try {
            switch (any(5)) {
                case 0:
                    cameras.setRecordRate(docs, any(2) == 0 ? 500 : 2000);
                    break;
                case 1:
                    cameras.setShutterSpeed(docs, any(2) == 0 ? 1000 : 5000);
                    break;
                case 2:
                    cameras.setResolution(docs, 512, any(2) == 0 ? 512 : 256);
                    break;
                case 3:
                    cameras.setReduceMode(docs, any(2) == 0);
                    break;
                default:
                    cameras.setLowLight(docs, any(2) == 0);
            }
        } catch (const std::exception&) {
        }
        undo.endMacro();
    }
    QStringList told() {
        QStringList lines;
        for (const Message& message : test.desk.shown) {
            lines += message.list;
        }
        test.desk.shown.clear();
        return lines;
    }

    TestHost test;
};

TEST_F(Undo, PutsBackEachCamerasOwnValuesAndThoseThatMovedAlong) {
    const QVariantMap first = settings();
    setRate(2000);
    const QVariantMap second = settings();
    setRate(500, "Slower");
    const QVariantMap third = settings();
    ASSERT_NE(second["1"].toMap()["shutter"], first["1"].toMap()["shutter"]) << "it moved along";
    EXPECT_EQ(test.host.undo().undo(), "Slower");
    EXPECT_EQ(settings(), second);
    EXPECT_EQ(test.host.undo().undo(), "Frame rate");
    EXPECT_EQ(settings(), first);
    EXPECT_EQ(test.host.undo().undo(), "");
    EXPECT_EQ(test.host.undo().redo(), "Frame rate");
    EXPECT_EQ(test.host.undo().redo(), "Slower");
    EXPECT_EQ(settings(), third);
    EXPECT_EQ(test.host.undo().redo(), "");
    EXPECT_EQ(told(), QStringList());
}

TEST_F(Undo, LeavesAloneAndNamesThoseThatItMayNotTouch) {
    test.camera(2).change({{"rate", 1000}});
    const QVariantMap first = settings();
    setRate(2000);
    test.host.cameras().find(1)->change({{"locked", true}});
    test.host.faults().plant(2, "*", {{}, 0, true});
    test.host.cameras().find(3)->change({{"locked", true}});
    test.host.cameras().find(5)->change({{"connected", false}});
    test.host.cameras().find(6)->change({{"rate", 250}});
    test.host.cameras().find(7)->change({{"recordState", zeb::RecordReady}});
    const QVariantMap second = settings();
    EXPECT_EQ(test.host.undo().undo(), "Frame rate");
    QVariantMap expected = second;
    expected["8"] = first["8"];
    EXPECT_EQ(settings(), expected);
    EXPECT_EQ(
        told(),
        QStringList({"Gate: it is locked, and stays as it is", "Ramp: the camera is gone",
                     "Nozzle left: it is locked, and stays as it is", "Roof: it is not connected, and stays as it is",
                     "Track: it was changed since, and stays as it is", "Impact: it is armed, and stays as it is",
                     "Nozzle right: another head of the device stays as it is",
                     "Undo takes them back when they can be changed."}));
    // What only waited goes back the next time.
    for (const DOCKEY key : {1, 3, 5, 7}) {
        test.host.cameras().find(key)->change(
            {{"locked", false}, {"recordState", zeb::RecordLive}, {"connected", true}});
    }
    EXPECT_EQ(test.host.undo().undo(), "Frame rate");
    for (const char* key : {"1", "3", "4", "5", "7", "8"}) {
        EXPECT_EQ(settings()[key], first[key]) << key;
    }
    EXPECT_EQ(told(), QStringList());
    EXPECT_EQ(test.host.undo().undo(), "") << "those that have gone or were changed have left the step";
    EXPECT_EQ(test.host.undo().redo(), "Frame rate") << "both parts";
    EXPECT_EQ(test.host.undo().redo(), "");
    EXPECT_EQ(settings()["8"], second["8"]);

    // What fails once is not lost.
    test.host.faults().plant(8, "setRecordRate", {"busy"});
    EXPECT_EQ(test.host.undo().undo(), "Frame rate");
    EXPECT_EQ(settings()["8"], second["8"]);
    test.host.faults().clear();
    EXPECT_EQ(test.host.undo().undo(), "Frame rate");
    EXPECT_EQ(settings()["8"], first["8"]);

    // Nor does one head take back what another one was given since.
    begin();
    setRate(2000);
    test.host.cameras().find(3)->change({{"locked", true}});
    test.host.cameras().find(4)->change({{"rate", 250}});
    EXPECT_EQ(test.host.undo().undo(), "Frame rate");
    test.host.cameras().find(3)->change({{"locked", false}});
    EXPECT_EQ(test.host.undo().undo(), "");
    EXPECT_EQ(settings()["4"].toMap()["rate"].toInt(), 250);
}

TEST_F(Undo, GoesPastWhatNobodyCanTakeBackAndComesBackToIt) {
    const QVariantMap first = settings();
    setRate(2000);
    test.host.undo().beginMacro("Of one");
    test.host.cameraOps().setRecordRate(test.docs({1}), 500);
    test.host.undo().endMacro();
    test.host.cameras().find(1)->change({{"connected", false}});
    EXPECT_EQ(test.host.undo().undo(), "Of one");
    EXPECT_EQ(told(), QStringList({"Gate: it is not connected, and stays as it is",
                                   "Undo takes them back when they can be changed."}));
    EXPECT_EQ(test.host.undo().undo(), "Frame rate");
    EXPECT_EQ(settings()["7"], first["7"]);
    EXPECT_EQ(settings()["1"].toMap()["rate"].toInt(), 500);
    test.host.cameras().find(1)->change({{"connected", true}});
    EXPECT_EQ(test.host.undo().undo(), "Of one");
    EXPECT_EQ(test.host.undo().undo(), "Frame rate");
    EXPECT_EQ(settings(), first);

    // A shutter that was set in low light goes back in low light.
    test.host.cameras().find(1)->change({{"lowLight", true}});
    const QVariant shutter = settings()["1"].toMap()["shutter"];
    test.host.undo().beginMacro("Shutter");
    test.host.cameraOps().setShutterSpeed(test.docs({1}), 5000);
    test.host.undo().endMacro();
    EXPECT_NE(settings()["1"].toMap()["shutter"], shutter);
    told();
    EXPECT_EQ(test.host.undo().undo(), "Shutter");
    EXPECT_EQ(settings()["1"].toMap()["shutter"], shutter);
    EXPECT_EQ(told(), QStringList());
}

TEST_F(Undo, AFaultAtAnyCallLosesNoCamerasValuesUntold) {
    for (const Fault& fault : {Fault{"busy"}, Fault{{}, 0, true}}) {
        for (int call = 1;; ++call) {
            begin();
            QVariantMap names;
            for (const Camera* camera : test.host.cameras().known()) {
                names.insert(QString::number(camera->key()), camera->get(&CameraState::name));
            }
            const QVariantMap first = settings();
            setRate(2000);
            const QVariantMap second = settings();
            told();
            test.host.faults().plantAt(call, fault);
            EXPECT_EQ(test.host.undo().undo(), "Frame rate");
            const bool isOver = test.host.faults().calls().size() < call;
            test.host.faults().clear();
            const QString failures = told().join('\n');
            for (const QString& key : first.keys()) {
                const bool isTold = failures.contains(names[key].toString() + ": ");
                EXPECT_TRUE(settings()[key] == first[key] || isTold) << call << names[key].toString().toStdString();
            }
            EXPECT_EQ(test.host.undo().canUndo(), !failures.isEmpty() && !fault.gone) << call;
            if (!fault.gone) {
                test.host.undo().undo();
                EXPECT_EQ(settings(), first) << "what fails once goes back the next time; call " << call;
                EXPECT_EQ(test.host.undo().redo(), "Frame rate");
                EXPECT_EQ(settings(), second) << call;
            }
            if (isOver) {
                EXPECT_GT(call, 8);
                break;
            }
        }
    }
}

TEST_F(Undo, StepsComeBackAndForthWhateverWaitedMeanwhile) {
    for (unsigned seed = 1; seed <= 100; ++seed) {
        std::mt19937 random(seed);
        const auto any = [&random](unsigned count) { return random() % count; };
        begin();
        QStringList named;
        const auto move = [&](bool back) {
            const QString text = back ? test.host.undo().undo() : test.host.undo().redo();
            named += told();
            return text;
        };
        const auto moveAll = [&](bool back) {
            int moves = 0;
            while (!move(back).isEmpty() && moves < 60) {
                ++moves;
            }
            EXPECT_LT(moves, 60) << "it never ends; seed " << seed;
        };
        const QVariantMap first = settings();
        for (int step = 0; step < 6; ++step) {
            change(any);
        }
        const QVariantMap last = settings();
        for (int step = 0; step < 10; ++step) {
            const DOCKEY key = 1 + any(8);
            test.host.cameras().find(key)->change({{any(2) == 0 ? "locked" : "connected", any(2) == 0}});
            move(any(3) != 0);
        }
        for (DOCKEY key = 1; key <= 8; ++key) {
            test.host.cameras().find(key)->change({{"locked", false}, {"connected", true}});
        }
        const auto expect = [&](const QVariantMap& expected, const char* when) {
            for (const Camera* camera : test.host.cameras().known()) {
                const QString key = QString::number(camera->key());
                const QString lost = camera->get(&CameraState::name) + ": it ";
                const bool isNamed =
                    named.join('\n').contains(lost + "was changed") || named.join('\n').contains(lost + "can't have");
                EXPECT_TRUE(isNamed || settings()[key] == expected[key])
                    << when << ", camera " << key.toStdString() << ", seed " << seed;
            }
        };
        moveAll(true);
        expect(first, "undone");
        moveAll(false);
        expect(last, "done again");
        moveAll(true);
        expect(first, "undone once more");
    }
}

TEST_F(Undo, KeepsStepsClosedAndThoseOfImageToolsApart) {
    setRate(2000);
    setRate(500, "");
    EXPECT_FALSE(test.host.undo().canUndo()) << "a tool's is not for the user";
    test.host.undo().clear();
    EXPECT_EQ(test.host.undo().undoText(), "Frame rate");

    test.fail("endMacro");
    EXPECT_THROW(setRate(250, "Slower"), std::exception);
    test.host.faults().clear();
    setRate(1000, "Last");
    EXPECT_EQ(test.host.undo().undo(), "Last");
    EXPECT_EQ(test.host.undo().undo(), "Slower");
    test.host.undo().beginMacro("Nothing");
    test.host.undo().endMacro();
    EXPECT_EQ(test.host.undo().redoText(), "Slower") << "what changes nothing is no step";
    test.host.appStatus().enterMode(zeb::MemoryMode);
    EXPECT_FALSE(test.host.undo().canUndo());
    EXPECT_EQ(test.host.undo().undo(), "");
    test.host.appStatus().enterMode(zeb::LiveMode);
    test.host.setRig(connected(2));
    EXPECT_FALSE(test.host.undo().canUndo() || test.host.undo().canRedo());
}

}  // namespace
