#include "Course.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "ZebCycleFailure.h"
#include "support/TestHost.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

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
    const QStringList entries = log.take();
    EXPECT_EQ(entries.filter("critical: "), QStringList({line, line}));
    EXPECT_EQ(entries.filter(QRegularExpression("^error ")).size(), 2);
    EXPECT_TRUE(desk.beside.isEmpty());

    host.errorHandler(ZebCycleFailure("Gate: no answer"));
    EXPECT_EQ(desk.shown.size(), 3);
    EXPECT_EQ(desk.beside, QStringList{QStringLiteral("Gate: no answer")});
    EXPECT_EQ(log.take(), QStringList("error Gate: no answer")) << "whoever met it has written it down";
}

TEST_F(Messages, JournalIsARingWithMarks) {
    Journal journal;
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
    EXPECT_TRUE(cameras.isAllLowlight(true) && cameras.isAllLowlight(false)) << "no camera would have to be switched";
    EXPECT_FALSE(cameras.isAllWrenLockDevice());
    host.docManager().connectDocs({1, 2});
    test.camera(1).change({{"lowLight", true}, {"locked", true}});
    EXPECT_FALSE(cameras.isLowlight()) << "it is not chosen";
    EXPECT_FALSE(cameras.isAllLowlight(true) || cameras.isAllWrenLockDevice());
    test.camera(2).change({{"lowLight", true}, {"locked", true}, {"selected", true}});
    EXPECT_TRUE(cameras.isLowlight() && cameras.existLowlight() && cameras.isAllWrenLockDevice());
    EXPECT_FALSE(cameras.isAllLowlight(false));
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
