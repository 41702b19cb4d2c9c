#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "PlainState.h"
#include "support/TestHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

/// Keys: 1 Gate, 2 Ramp, 3 and 4 the nozzle heads, 5 Roof, 6 Track, 7 Impact, 8 Stand-in.
class MixedCameras : public testing::Test {
protected:
    MixedCameras() {
        for (DOCKEY key = 1; key <= 8; ++key) {
            test.camera(key).set(&CameraState::connected, true);
        }
    }

    unsigned int rate(DOCKEY key) { return test.doc(key)->control().getRecordRate(0); }
    void setRate(const DocKeyList& keys, unsigned int value) {
        test.host.cameraOps().setRecordRate(test.docs(keys), value);
    }
    void plant(DOCKEY key, const char* operation, const Fault& fault) {
        test.host.faults().plant(key, QString::fromLatin1(operation), fault);
    }

    TestHost test{readRig(QStringLiteral("eight-mixed"))};
};

}  // namespace

TEST_F(MixedCameras, TakeTheRateThatTheirModelMakesOfIt) {
    setRate({1}, 2000);
    EXPECT_EQ(rate(1), 2000u);
    setRate({1}, 2999);
    EXPECT_EQ(rate(1), 2000u) << "the next lower rate";
    setRate({1}, 7);
    EXPECT_EQ(rate(1), 50u) << "the lowest";
    setRate({1}, 4000000000u);
    EXPECT_EQ(rate(1), 10000u) << "the highest";

    EXPECT_EQ(thrownBy([&] { setRate({7}, 2999); }), "Impact: a rate of 2999 fps is not supported");
    EXPECT_EQ(rate(7), 10000u);
}

TEST_F(MixedCameras, HeadsOfADeviceShareTheirRateAndConnection) {
    setRate({4}, 2000);
    EXPECT_EQ(rate(3), 2000u);

    test.host.docManager().disconnectDocs({3});
    EXPECT_FALSE(test.doc(4)->isConnected());
    test.host.docManager().connectDocs({4});
    EXPECT_TRUE(test.doc(3)->isConnected());
    EXPECT_EQ(test.doc(4)->getParentDoc(), test.doc(3));
    EXPECT_EQ(test.doc(3)->getParentDoc(), nullptr);
    EXPECT_EQ(test.doc(1)->getParentDoc(), nullptr);

    test.doc(4)->lock().setParamLock(true);
    EXPECT_TRUE(test.host.docManager().sharesDeviceWithLockedHead(test.doc(3), false, false));
    EXPECT_FALSE(test.host.docManager().sharesDeviceWithLockedHead(test.doc(4), false, false)) << "its own lock";
}

TEST_F(MixedCameras, ABatchReachesTheOthersAndNamesThoseThatFail) {
    plant(2, "setRecordRate", Fault{"no answer"});
    plant(6, "*", Fault{"\u30ab\u30e1\u30e9 <b>off</b>"});
    const auto work = [this] { setRate({1, 2, 6, 5}, 1000); };
    EXPECT_EQ(thrownBy(work), "Ramp: no answer\nTrack: \u30ab\u30e1\u30e9 <b>off</b>");
    EXPECT_EQ(rate(1), 1000u);
    EXPECT_EQ(rate(2), 2000u);
    EXPECT_EQ(rate(5), 1000u);
    EXPECT_EQ(test.calls().last(), "setRecordRate 1,2,6,5 1000");
}

TEST_F(MixedCameras, TakeWhatADocumentIsTold) {
    test.camera(1).change({{"lowLight", true}, {"shutter", 50}});
    test.doc(1)->control().setLowLightMode(false);
    EXPECT_EQ(test.camera(1).get(&CameraState::shutter), 1000) << "no longer than a frame";
    test.doc(1)->control().setLowLightMode(true);
    EXPECT_EQ(test.camera(1).get(&CameraState::shutter), 50);
    DOC_Control& roof = test.doc(5)->control();
    EXPECT_EQ(thrownBy([&] { roof.setPortSignal(4, 9); }), "Roof: there is no port at place 4");
    EXPECT_EQ(thrownBy([&] { roof.setLowLightType(2); }), "Roof: the camera has no low light mode");
}

TEST_F(MixedCameras, TakeTheirTimeOnTheClock) {
    test.clock.join();
    setRate({1, 5}, 1000);
    EXPECT_EQ(test.clock.join(), 8) << "as long as the slower of the two";

    plant(1, "getRecordRate", {{}, 300, false});
    rate(1);
    rate(5);
    EXPECT_EQ(test.clock.join(), 300);
}

TEST_F(MixedCameras, OnesThatAreNotConnectedAnswerOnlyWhatTheHostKnows) {
    test.camera(1).set(&CameraState::connected, false);
    EXPECT_EQ(test.doc(1)->control().getCameraName(1), QStringLiteral("Gate"));
    EXPECT_EQ(test.doc(1)->control().getAddress(1), QStringLiteral("192.168.0.11"));
    EXPECT_EQ(thrownBy([this] { rate(1); }), "Gate: the camera is not connected");
    EXPECT_EQ(thrownBy([this] { setRate({1}, 50); }), "Gate: the camera is not connected");
    EXPECT_EQ(test.camera(1).get(&CameraState::rate), 1000u);
}

TEST_F(MixedCameras, FailuresToConnectAreShownInOneBox) {
    test.host.docManager().disconnectDocs({1, 2, 3});
    plant(1, "connectDocs", Fault{"refused"});
    plant(3, "connectDocs", Fault{"no route"});
    test.host.docManager().connectDocs({1, 2, 3});
    EXPECT_EQ(test.desk.texts(), QStringList{QStringLiteral("Gate: refused\nNozzle left: no route")});
    EXPECT_EQ(test.host.docManager().getConnectedDocKeys(), (DocKeyList{2, 5, 6, 7, 8}));
}

TEST_F(MixedCameras, ChangeBehindTheBackIsAllOrNothing) {
    EXPECT_THROW(test.camera(1).change({{QStringLiteral("name"), QStringLiteral("Newer")},
                                        {QStringLiteral("status"), QStringLiteral("high")}}),
                 StateError);
    EXPECT_EQ(test.camera(1).name(), QStringLiteral("Gate"));
}

TEST_F(MixedCameras, OfferShutterSpeedsAsThePreferenceSays) {
    DOC_Control& control = test.doc(5)->control();
    EXPECT_EQ(control.getShutterSpeed(), 500);
    EXPECT_EQ(control.getShutterSpeedEntries().first(), QStringLiteral("60;1/60 sec;1"));

    test.host.setPrefInt(QStringLiteral("display/ShutterSpeed"), 2);
    EXPECT_EQ(control.getShutterSpeed(), 2000000);
    EXPECT_EQ(control.getShutterSpeedEntries().last(), QStringLiteral("200000;200 \u00b5s;2"));
    EXPECT_EQ(test.doc(5)->formatShutterSpeed(2000000, 0), QStringLiteral("2 ms"));
    EXPECT_EQ(control.getShutterSpeedList(1).indexOf(5000), control.getShutterSpeedList(2).indexOf(200000));
}
