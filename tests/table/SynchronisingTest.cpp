#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "JS_Mediator_WrenDefaultSettingsDialog.h"
#include "RigFile.h"
#include "TableFixture.h"
#include "VisaFile.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QRegularExpression>
#include <QSemaphore>
#include <QTest>
#include <QTimer>

namespace {

/// Three cameras of one model, in a chain. There is no driver for a signal generator beside this program.
class SynchronisingTest : public BridgeFixture {
protected:
    SynchronisingTest() {
        host.setRig(standardRig(3));
        connectAll();
        host.setPrefBool("wren/settings/syncInEnable", true);
        host.setPrefBool("alert/setsynchronization", true);
        makeBridge();
        calls();
    }

    QString settings(const char* member) {
        const QJsonValue value = QJsonDocument::fromJson(bridge->getSyncSettings().toUtf8()).object()[member];
        return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    }

    void useGenerator() {
        host.setPrefBool("sync/external", true);
        host.setPrefString("sync/generator/address", "192.168.0.200");
    }

    /// What the cameras got since the last asking.
    QStringList handedOver() { return calls().filter("syncCameras"); }
};

TEST_F(SynchronisingTest, AChainShowsNoFrequenciesAndOtherModesNothing) {
    expectJson(bridge->getSyncSettings(),
               R"({"syncEnable":true,"syncExecuteEnable":true,"syncSignal":"","syncSignals":[],
                   "signalGeneratorAvailable":false,"signalGeneratorConnected":false,"masterHubAvailable":false,
                   "masterHubConnected":false})");
    for (const int mode : {zeb::MemoryMode, zeb::FileMode}) {
        host.appStatus().enterMode(mode);
        EXPECT_EQ(settings("syncEnable") + settings("syncExecuteEnable"), "[false][false]");
        EXPECT_FALSE(bridge->setSyncSettings());
    }
    EXPECT_EQ(handedOver(), QStringList());
    EXPECT_EQ(desk.texts(), QStringList());
}

TEST_F(SynchronisingTest, HandsTheCamerasOverAndRemindsOfTheWiring) {
    host.setPrefString("sync/masterCamera", host.docManager().getDocAny(2)->control().getAddress(1));
    host.setPrefInt("sync/lport", 1);
    host.setPrefInt("sync/generator/input", 1);
    host.setPrefInt("wren/settings/triggerIn", zeb::SignalTrigPos);
    const QString notice =
        "When using the software trigger, please check the wiring of the TRIG IN terminal and enable 'Do not input "
        "software trigger to slave camera'";
    EXPECT_TRUE(bridge->setSyncSettings());
    EXPECT_EQ(handedOver(), QStringList{"syncCameras 2,1,3 2 1 false false 1 -1 0"});
    EXPECT_EQ(desk.texts(), QStringList{notice});

    host.setPrefInt("wren/settings/triggerIn", zeb::SignalTrigNeg);
    host.setPrefString("sync/masterCamera", "10.9.8.7");
    EXPECT_TRUE(bridge->setSyncSettings());
    EXPECT_EQ(handedOver(), QStringList{"syncCameras 1,2,3 1 1 false false 1 -1 1"});
    EXPECT_EQ(desk.texts(), (QStringList{notice, notice}));
}

TEST_F(SynchronisingTest, ACameraThatDoesNotAnswerHidesNoReasonOfAnEarlierOne) {
    change(1, {{"lowLight", true}});
    host.faults().plant(2, "getTriggerMode", {"no answer", 0, false});
    EXPECT_FALSE(bridge->setSyncSettings());
    EXPECT_EQ(desk.texts(),
              QStringList{"Synchronization setting is impossible due to the presence of low light camera."});
}

TEST_F(SynchronisingTest, CamerasThatAreNotSynchronisedAreArmedAllTheSame) {
    host.setPrefBool("wren/settings/recordingSync", true);
    host.setPrefBool("wren/display/lock", false);
    host.faults().plant(2, "synchronise", {"no lock on the signal", 0, false});
    bridge->record();
    EXPECT_EQ(calls().filter(QRegularExpression("syncCameras|selectAllDocs|startRecReady")),
              (QStringList{"selectAllDocs", "syncCameras 1,2,3 1 0 false false 0 -1 0", "startRecReady"}));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !desk.shown.isEmpty(); }));
    EXPECT_TRUE(desk.texts().first().contains("Camera 2"));

    host.recorder().cancelRecording(false);
    change(3, {{"lowLight", true}});
    bridge->record();
    EXPECT_EQ(calls().filter("startRecReady"), QStringList()) << "what is told before they are handed over stops it";
}

TEST_F(SynchronisingTest, WhileTheCamerasAreHandedOverNothingElseReachesThem) {
    host.setPrefBool("alert/setsynchronization", false);
    QSemaphore handOver;
    QObject::connect(
        &host.journal(), &Journal::recorded, &host.journal(),
        [&handOver](const QString& call) {
            if (call == QLatin1String("ZebCameraOps::syncCameras")) {
                handOver.acquire();
            }
        },
        Qt::DirectConnection);
    QPointer<QWidget> progress;
    QTimer::singleShot(0, bridge.get(), [&] {
        progress = QApplication::activeModalWidget();
        ASSERT_TRUE(progress);
        QTest::keyClick(progress, Qt::Key_Escape);
        progress->close();
        bridge->connect({1, 2, 3}, false, true);
        bridge->setFrameRate({1}, "500");
        EXPECT_TRUE(progress->isVisible());
        EXPECT_TRUE(stateOf(1, "connected").toBool()) << "a forced disconnection waits";
        handOver.release();
    });
    EXPECT_TRUE(bridge->setSyncSettings());
    EXPECT_FALSE(progress);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !stateOf(1, "connected").toBool(); })) << "and is not lost";
    EXPECT_EQ(stateOf(1, "rate").toInt(), 1000) << "a click of the page is refused";
}

TEST_F(SynchronisingTest, AVerdictTellsWhatKeepsACameraFromTheSignalAndByHowMuchItIsOff) {
    const auto verdict = [this](DOCKEY key) {
        const QJsonObject texts = QJsonDocument::fromJson(bridge->getSyncVerdict(key).toUtf8()).object();
        return QStringList{texts["check"].toString(), texts["follows"].toString(), texts["rate"].toString(),
                           texts["recorded"].toString()};
    };
    EXPECT_EQ(verdict(1),
              QStringList({"", "The cameras have not been synchronised yet.", "Record rate: 1000 fps", ""}));
    host.setPrefBool("alert/setsynchronization", false);
    ASSERT_TRUE(bridge->setSyncSettings());
    change(2, {{"rate", 1500}, {"name", "<%2>"}});
    EXPECT_EQ(verdict(1).mid(1, 2), QStringList({"It is the master camera.", "Record rate: 1000 fps"}));
    EXPECT_EQ(verdict(2).mid(0, 3),
              QStringList({"", "Master camera: Camera 1, 1000 fps", "Record rate: 1500 fps, 500 above the signal"}));
    change(2, {{"triggerMode", zeb::TriggerEnd}});
    const QString modes = "Sync setting is possible only when all cameras are in the same trigger mode.";
    EXPECT_EQ(verdict(2)[0], modes + " (End Trg; Camera 1 has Start Trg)");
    EXPECT_EQ(verdict(3)[0], "<%2>: " + modes + " (End Trg; Camera 1 has Start Trg)");
    EXPECT_EQ(verdict(3)[2], "Record rate: 1000 fps, as the signal");
    host.faults().plant(2, "getTriggerMode", {"no answer", 0, false});
    EXPECT_EQ(verdict(2)[0], "<%2>: no answer");
    EXPECT_EQ(verdict(2)[2], "Record rate: 1500 fps, 500 above the signal") << "one question hides no other";
    host.faults().plant(2, "*", {{}, 0, true});
    change(3, {{"recorded", true}, {"recordedRange", QVariantList{-100, 899}}, {"recordedRate", 500}});
    EXPECT_EQ(verdict(3)[3], "Recorded: 1000 frames, 500 fps, 500 below the signal");
    change(1, {{"connected", false}});
    EXPECT_EQ(verdict(3).mid(0, 2), QStringList({"", "The master camera is not connected."}));
    EXPECT_EQ(bridge->getSyncVerdict(77), QString());

    VisaFile visa;
    useGenerator();
    EXPECT_EQ(verdict(3)[1], "The source of the signal is not connected.");
    bridge->connectSignalGenerator();
    bridge->setSignalFrequency(2000);
    EXPECT_EQ(verdict(3).mid(1, 2),
              QStringList({"Signal of the generator: 2000 Hz", "Record rate: 1000 fps, 1000 below the signal"}));

    host.setRig(readRig("eight-mixed"));
    for (const DOCKEY key : {1, 6, 8}) {
        change(key, {{"connected", true}});
    }
    EXPECT_EQ(verdict(8)[0], "Dummy camera can not set synchronization");
    EXPECT_EQ(verdict(1)[0].section("(", 1), "with delay: 1, without: 1)");
    EXPECT_EQ(desk.texts(), QStringList()) << "a tip is no reason for a box";
}

TEST_F(SynchronisingTest, AListOfManyRecordsAsksTheGeneratorOnce) {
    VisaFile visa;
    host.setRig(standardRig(64));
    connectAll();
    change(9, {{"rate", 500}});
    useGenerator();
    const auto alerts = [this] {
        const QString json = bridge->getRecords(R"({"group":"","filter":0,"tab":1})");
        return json.count("External sync signal and cameras recordrate are different");
    };
    bridge->connectSignalGenerator();
    bridge->setSignalFrequency(1000);
    EXPECT_EQ(visa.journal().filter("FREQ 1000").size(), 1);
    EXPECT_EQ(alerts(), 1);
    EXPECT_EQ(visa.journal().filter("FREQ?").size(), 1);
    EXPECT_FALSE(bridge->checkDifferenceRecordRateAndExternalFrequency(host.docManager().getDocAny(9)));
    EXPECT_TRUE(bridge->checkDifferenceRecordRateAndExternalFrequency(host.docManager().getDocAny(8)));
    visa.journal();
    EXPECT_EQ(settings("signalGeneratorConnected"), "[true]");
    EXPECT_EQ(visa.journal().filter("FREQ?").size(), 2) << "whether it answers, and what it makes";
}

TEST_F(SynchronisingTest, TheTableComingBackWhileAGeneratorIsSoughtConnectsNothingTwice) {
    VisaFile visa;
    useGenerator();
    visa.script(R"({"viOpen": {"hold": true}})");
    QTimer::singleShot(0, bridge.get(), [&] {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !visa.journal().filter("viOpen ").isEmpty(); }));
        bridge->onOpen();
        host.setPrefString("sync/generator/address", {});
        bridge->onOpen();
        EXPECT_EQ(visa.journal(), QStringList()) << "the worker has the instrument";
        visa.release();
    });
    bridge->connectSignalGenerator();
    host.setPrefString("sync/generator/address", "192.168.0.200");
    EXPECT_EQ(settings("signalGeneratorConnected"), "[true]");
    EXPECT_EQ(desk.texts(), QStringList());
}

TEST_F(SynchronisingTest, WhatBecomesOfTheCamerasWhileAGeneratorIsSoughtIsSeen) {
    VisaFile visa;
    useGenerator();
    const struct {
        const char* sentence;
        QVariantMap change;
        QString handedOver;
    } cases[] = {
        {"one begins to record", {{"recordState", zeb::RecordRecording}}, {}},
        {"one goes into low light", {{"lowLight", true}}, {}},
        {"one is disconnected", {{"lowLight", true}, {"connected", false}}, "syncCameras 1,3 1 0 true true 0 -1 0"},
    };
    for (const auto& each : cases) {
        visa.script(R"({"viOpen": {"hold": true}})");
        QTimer::singleShot(0, bridge.get(), [&] {
            ASSERT_TRUE(QTest::qWaitFor([&] { return !visa.journal().filter("viOpen ").isEmpty(); }));
            change(2, each.change);
            visa.release();
        });
        calls();
        bridge->setSyncSettings();
        EXPECT_EQ(handedOver().join(""), each.handedOver) << each.sentence;
        change(2, {{"recordState", zeb::RecordLive}, {"lowLight", false}, {"connected", true}});
        bridge->state().sync.generator.reset();
    }
}

TEST_F(SynchronisingTest, TheFirstHeadThatIsOnLeadsItsDevice) {
    host.setRig(readRig("eight-mixed"));
    host.faults().plant(8, "*", {{}, 0, true});  // a dummy
    change(4, {{"connected", true}});
    EXPECT_TRUE(bridge->setSyncSettings()) << desk.texts().join('\n').toStdString();
    EXPECT_EQ(bridge->state().sync.masterCamera, 4U) << "the first head of its device is off";
}

TEST_F(SynchronisingTest, TheDefaultSettingsOfferTheCamerasThatCanLead) {
    JS_Mediator_WrenDefaultSettingsDialog settings(&host);
    change(2, {{"name", "The \"second\""}});
    const QString address = host.docManager().getDocAny(2)->control().getAddress(1);
    const auto devices = [&settings] {
        return QJsonDocument::fromJson(settings.getMasterCameraList().toUtf8()).object()["devices"].toArray();
    };
    ASSERT_EQ(devices().size(), 3);
    EXPECT_EQ(devices()[1].toObject(), (QJsonObject{{"address", address}, {"name", "The \"second\""}}));
    Course course;
    for (const DOCKEY key : {2, 3}) {
        change(key, {{"connected", false}});
    }
    EXPECT_EQ(devices().size(), 1);
    EXPECT_EQ(course.take(), QStringList{"warning: Not enough devices to sync settings."});
}

}  // namespace
