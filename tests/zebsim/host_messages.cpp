#include "CameraError.h"
#include "Course.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "ZebCycleFailure.h"
#include "support/TestHost.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <thread>

namespace {

class Messages : public testing::Test {
protected:
    TestHost test{standardRig(2)};
    SimHost& host = test.host;
    ScriptedDesk& desk = test.desk;
};

}  // namespace

TEST_F(Messages, ComeAsPlainTextWithLineFeedsOnTheRightWindow) {
    QWidget window;
    QWidget other;
    host.setMainWindow(&window);
    host.warnList(QStringLiteral("<b>a</b><br>b"), {QStringLiteral("c")}, nullptr);
    host.alert(QStringLiteral("d"), &other);
    host.errorHandler(std::runtime_error(u8"\u30ab\u30e1\u30e9"));
    host.errorHandler(std::runtime_error(""));
    ASSERT_EQ(desk.shown.size(), 3) << "nothing for an empty error";
    EXPECT_EQ(desk.texts(), (QStringList{QStringLiteral("<b>a</b>\nb"), QStringLiteral("d"),
                                         QString::fromUtf8(u8"\u30ab\u30e1\u30e9")}));
    EXPECT_EQ(desk.shown[0].list, QStringList{QStringLiteral("c")});
    EXPECT_EQ(desk.shown[0].kind, Message::Warn);
    EXPECT_EQ(desk.shown[0].parent, &window);
    EXPECT_EQ(desk.shown[1].parent, &other);
    EXPECT_EQ(desk.shown[2].kind, Message::Error);
}

TEST_F(Messages, DontShowAgainStoresFalse) {
    const QString key = QStringLiteral("alert/wren/multiheadlockalert");
    desk.answers = {Answer{false, false}, Answer{true, true}};
    EXPECT_FALSE(host.confirmWithDontShowAgain(QStringLiteral("sure?"), key, nullptr, {}));
    EXPECT_TRUE(host.getPrefBool(key));
    EXPECT_TRUE(host.confirmWithDontShowAgain(QStringLiteral("sure?"), key, nullptr, {}));
    EXPECT_FALSE(host.getPrefBool(key));
    EXPECT_TRUE(desk.shown.first().offersSilence);
}

TEST_F(Messages, AFailureIsABoxAndALineEachTimeAndOneOfTheCycleOnlyANotice) {
    Course log;
    host.docManager().connectDocs({1});
    test.camera(1).set(&CameraState::name, QStringLiteral("Gate\nERROR forged"));
    host.faults().plant(1, QStringLiteral("getRecordRate"), Fault{"no \"answer\""});
    for (int i = 0; i < 2; ++i) {
        try {
            test.doc(1)->control().getRecordRate(0);
        } catch (const std::exception& e) {
            host.errorHandler(e);
        }
    }
    const QString line = QStringLiteral(R"(critical: "Gate\nERROR forged: no \"answer\"")");
    EXPECT_EQ(log.take(), QStringList({line, line}));
    EXPECT_TRUE(desk.beside.isEmpty());

    host.errorHandler(ZebCycleFailure("Gate: no answer"));
    EXPECT_EQ(desk.shown.size(), 3);
    EXPECT_EQ(desk.beside, QStringList{QStringLiteral("Gate: no answer")});
    EXPECT_EQ(log.take(), QStringList()) << "whoever met it has written it down";
}

TEST_F(Messages, AFaultIsMetByTheCallThatItIsPlantedOn) {
    const QString address = QStringLiteral("192.168.0.61");
    host.setRig(readRig(QStringLiteral("sync")));
    host.signalDevices().open(1);
    host.signalDevices().search(3, 1);
    const QList<std::function<void()>> calls{[&] { host.getPrefBool(QStringLiteral("a")); },
                                             [&] { host.setPrefBool(QStringLiteral("a"), true); },
                                             [&] { host.docManager().getDocKeys(); },
                                             [&] { host.recorder().isRecording(); },
                                             [&] { host.cameraOps().canSync({}); },
                                             [&] { host.undo().canUndo(); },
                                             [&] { host.isModalDialogOpening(), host.saver().isSaving(); },
                                             [&] { host.signalDevices().findByAddress(address); },
                                             [&] { host.signalDevices().hub(address)->getRole(); },
                                             [&] { test.doc(1)->isConnected(); }};
    const Fault fault{QStringLiteral("no answer"), 0, false};
    const auto failing = [&] {
        QList<int> numbers;
        for (int n = 0; n < calls.size(); ++n) {
            try {
                calls[n]();
            } catch (const std::runtime_error&) {
                numbers.append(n);
            }
        }
        return numbers;
    };
    const QList<int> canFail{0, 1, 2, 3, 4, 5, 7, 8, 9};
    for (int i = 0; i < canFail.size(); ++i) {
        host.faults().plantAt(i + 1, fault);
        EXPECT_EQ(failing(), QList<int>{canFail[i]}) << "call " << i + 1 << " of cameras, hubs and host";
    }
    host.faults().clear();
    host.faults().plant(FaultPlan::Host, QStringLiteral("getDocKeys"), fault);
    EXPECT_EQ(failing(), QList<int>{2});
    host.faults().plant(FaultPlan::Host, QStringLiteral("*"), fault);
    EXPECT_EQ(failing(), (QList<int>{0, 1, 2, 3, 4, 5, 7}));
    EXPECT_NO_THROW(host.messages().tell(Message::Info, QStringLiteral("the host's own")));
}

TEST_F(Messages, JournalIsARingWithMarks) {
    Journal journal;
    QSignalSpy spy(&journal, &Journal::recorded);
    for (int i = 0; i < Journal::Capacity + 5; ++i) {
        journal.record("call", {i});
    }
    const quint64 mark = journal.count();
    EXPECT_EQ(journal.since(0).size(), Journal::Capacity);
    EXPECT_EQ(journal.since(0).first().toMap().value(QStringLiteral("args")), QVariantList{5});
    journal.record("last");
    EXPECT_EQ(journal.since(mark).size(), 1);
    EXPECT_TRUE(journal.since(journal.count()).isEmpty());

    journal.setEnabled(false);
    journal.record("unseen");
    EXPECT_EQ(journal.count(), mark + 1);
    EXPECT_EQ(spy.count(), Journal::Capacity + 6);
}

TEST_F(Messages, FaultsAndJournalBearManyThreads) {
    host.docManager().connectDocs({1, 2});
    const quint64 mark = host.journal().count();
    auto work = [this](DOCKEY key) {
        for (int i = 0; i < 500; ++i) {
            host.faults().plant(key, QStringLiteral("getRecordRate"), i % 2 ? Fault() : Fault{"no"});
            host.journal().record("call", {key});
            try {
                test.camera(key).setRecordRate(50);
                test.camera(key).askConnected(OPERATION("getRecordRate"));
            } catch (const CameraError&) {
                ASSERT_EQ(i % 2, 0);
            }
        }
    };
    std::thread first(work, 1);
    std::thread second(work, 2);
    first.join();
    second.join();
    EXPECT_EQ(host.journal().count() - mark, 1000u);
    EXPECT_EQ(test.clock.join() % 2, 0);
}

TEST_F(Messages, SelectionHasACurrentDocument) {
    SimDocManager& docs = host.docManager();
    EXPECT_EQ(docs.getCurrentDoc(), nullptr);
    EXPECT_FALSE(docs.isCurrentDoc(zeb::NoDocKey));
    docs.selectDoc(2);
    docs.selectDoc(1);
    EXPECT_TRUE(docs.isCurrentDoc(2)) << "the first that was selected";
    docs.deselectDoc(2);
    EXPECT_TRUE(docs.isCurrentDoc(1));
    host.setRig(standardRig(1));
    EXPECT_EQ(docs.getCurrentDoc(), nullptr);
    EXPECT_EQ(docs.getDocKeys(), DocKeyList{1});
}

TEST_F(Messages, StatesOfTheHostFollowItsCameras) {
    const ZebCameraOps& cameras = host.cameraOps();
    const auto states = [&] {
        const QList<QPair<QString, bool>> all{
            {"chosen", cameras.isLowlight()},          {"one", cameras.existLowlight()},
            {"all on", cameras.isAllLowlight(true)},   {"all off", cameras.isAllLowlight(false)},
            {"locked", cameras.isAllWrenLockDevice()}, {"recording", host.recorder().isRecording()}};
        QStringList on;
        for (const auto& [state, isOn] : all) {
            on += isOn ? QStringList(state) : QStringList();
        }
        return on.join(QStringLiteral(", "));
    };
    EXPECT_EQ(states(), "all on, all off") << "there is no connected camera that would have to be switched";
    EXPECT_EQ(host.mdi().countMdiWindow(true, 0), 0);
    host.docManager().connectDocs({1, 2});
    EXPECT_EQ(host.mdi().countMdiWindow(true, 0), 2);
    EXPECT_EQ(states(), "all off");
    test.camera(1).change({{"lowLight", true}, {"locked", true}});
    EXPECT_EQ(states(), "one");
    test.camera(2).change({{"lowLight", true}, {"locked", true}, {"selected", true}, {"recordState", 3}});
    EXPECT_EQ(states(), "chosen, one, all on, locked, recording");
    EXPECT_EQ(host.docManager().getSelectedDocCount(), 1);
    EXPECT_EQ(host.docManager().getDocCount(), int(host.docManager().getDocKeys().size()));
}

TEST(Search, TellsWhereItLookedAndWhatItFound) {
    TestHost test(readRig(QStringLiteral("eight-mixed")));
    for (const char* network : {"192.168.7.0", "192.168.7.0", "10.1.255.0"}) {
        test.host.cameraOps().searchCamera(QString::fromLatin1(network));
    }
    test.host.cameraOps().discoverCameras();
    QCoreApplication::processEvents();
    EXPECT_EQ(test.desk.beside.join(QLatin1Char('\n')).toStdString(),
              "Search in 192.168.7.xxx: found Hall left, Hall right.\n"
              "Search in 192.168.7.xxx: no further camera; those that answer are listed already.\n"
              "Search in 10.1.255.xxx: no camera answers.\n"
              "Search in the whole network: found Spare.");
}
