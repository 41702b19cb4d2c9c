#include "DOC_Control.h"
#include "DOC_Head.h"
#include "DOC_Interface.h"
#include "support/TestHost.h"

#include "ModelCatalogue.h"

#include <QMetaClassInfo>
#include <QMetaProperty>

#include <gtest/gtest.h>

namespace {

TEST(CameraSettings, EachMemberIsOfOneKind) {
    const QMetaObject& type = CameraState::staticMetaObject;
    QStringList members;
    for (int i = 0; i < type.propertyCount(); ++i) {
        members << type.property(i).name();
    }
    QStringList marked;
    for (int i = 0; i < type.classInfoCount(); ++i) {
        marked += QString(type.classInfo(i).value()).split(' ');
    }
    members.sort();
    marked.sort();
    EXPECT_EQ(marked, members);
    EXPECT_TRUE(CameraState::settings().contains("rate"));
    EXPECT_FALSE(CameraState::settings().contains("recorded"));
}

/// Keys 1 and 2 are the heads of a device with 7 presets, 3 starts anew for one of its 4, in 5 s, 4 has none.
class Presets : public testing::Test {
protected:
    Presets() {
        const auto device = [](int last, const char* model, int heads) {
            const auto found = ModelCatalogue::shipped().find(model);
            RigDevice made{QString("10.0.0.%1").arg(last), found, 50, true, {}};
            for (int i = 1; i <= heads; ++i) {
                made.heads.append(found->initial);
                made.heads.last().name = QString("%1 %2").arg(model).arg(i);
                made.heads.last().connected = true;
            }
            return made;
        };
        Rig rig;
        rig.devices = {device(1, "two-head", 2), device(2, "fast", 1), device(3, "compact", 1)};
        test.host.setRig(rig);
        QCoreApplication::processEvents();
    }

    DOC_Control& control(DOCKEY key) { return test.doc(key)->control(); }
    QVariantMap recordSettings(DOCKEY key) { return test.camera(key).state().toPlain(CameraState::recordSettings()); }
    /// As the dialog does it: marks the device, loads, disconnects.
    void loadAnew(int preset) {
        test.doc(3)->markRebooting(0, 3);
        control(3).loadCameraPreset(preset);
        test.doc(3)->head().refreshAfterPreset(0);
        test.host.docManager().disconnectDoc(3, 0);
    }
    /// What is told until then.
    QStringList pass(qint64 ms) {
        test.clock.join();
        test.clock.advance(ms);
        test.host.proceed();
        QCoreApplication::processEvents();
        return test.desk.take();
    }
    bool isConnected(DOCKEY key) { return test.camera(key).get(&CameraState::connected); }
    std::string refusalToConnect() {
        test.host.docManager().connectDocs({3});
        return test.desk.take().join('|').toStdString();
    }

    TestHost test;
};

TEST_F(Presets, LieInTheDeviceForAllItsHeads) {
    test.camera(2).change({{"shutter", 10000}, {"lowLight", true}});
    control(1).setLowLightType(zeb::LowLightTypeFine);
    const QVariantMap kept[] = {recordSettings(1), recordSettings(2)};
    control(2).saveCameraPreset(7);
    EXPECT_EQ(test.clock.join(), 100) << "50 ms a command";
    test.host.docManager().disconnectDocs({1});
    test.host.docManager().connectDocs({1});
    control(1).loadCameraPreset(2);
    EXPECT_EQ(recordSettings(2), test.camera(2).model().initial.toPlain(CameraState::recordSettings()))
        << "never saved";
    EXPECT_EQ(control(2).getCameraPresetInfo().current, 2);
    test.camera(1).set(&CameraState::name, "kept");
    control(1).loadCameraPreset(7);
    EXPECT_EQ(recordSettings(1), kept[0]);
    EXPECT_EQ(recordSettings(2), kept[1]);
    EXPECT_EQ(test.camera(1).name(), "kept");
    EXPECT_EQ(control(1).getCameraPresetInfo().count, 7);
    EXPECT_EQ(control(1).getCameraPresetInfo().current, 7);

    EXPECT_EQ(thrownBy([&] { control(1).loadCameraPreset(8); }), "kept: there is no such preset");
    EXPECT_EQ(thrownBy([&] { control(4).saveCameraPreset(1); }), "compact 1: there is no such preset");
    test.camera(2).change({{"recordState", 2}});
    for (const bool isLoad : {true, false}) {
        EXPECT_EQ(thrownBy([&] { isLoad ? control(1).loadCameraPreset(1) : control(1).saveCameraPreset(1); }),
                  "kept: no preset can be used while the camera is ready or records");
    }
}

TEST_F(Presets, ThatNeedARestartTakeTheCameraAwayAndBringItBack) {
    test.camera(3).change({{"rate", 1000}});
    loadAnew(1);
    EXPECT_EQ(test.camera(3).get(&CameraState::rate), 10000U);
    EXPECT_EQ(pass(4999), QStringList());
    EXPECT_FALSE(isConnected(3));
    EXPECT_EQ(refusalToConnect(), "fast 1: the camera is starting anew");
    EXPECT_EQ(thrownBy([&] { control(3).setCameraName("x"); }), "fast 1: the camera is starting anew");
    EXPECT_EQ(pass(1), QStringList()) << "it is no loss";
    EXPECT_TRUE(isConnected(3));

    test.host.faults().plant(3, "reboot", {"dead"});
    loadAnew(2);
    EXPECT_EQ(pass(5000), QStringList{"fast 1: it has not come back after its restart."});
    EXPECT_EQ(pass(50000), QStringList()) << "told once";
    EXPECT_EQ(refusalToConnect(), "fast 1: the camera has not come back after its restart");
    test.host.faults().clear();
    test.host.reboot(3);
    EXPECT_EQ(pass(5000), QStringList());
    EXPECT_TRUE(isConnected(3));
}

/// A device that has loaded its preset starts anew when it is disconnected; the mark tells that it is wanted back.
TEST_F(Presets, ThatFailEndTheMark) {
    for (const char* operation : {"markRebooting", "loadCameraPreset", "refreshAfterPreset", "disconnectDocs"}) {
        SCOPED_TRACE(operation);
        test.host.faults().plant(3, operation, {"no answer"});
        EXPECT_EQ(thrownBy([&] { loadAnew(1); }), "fast 1: no answer");
        test.host.faults().clear();
        test.host.docManager().disconnectDoc(3, 0);
        pass(5000);
        EXPECT_EQ(isConnected(3),
                  QByteArray(operation) != "markRebooting" && QByteArray(operation) != "loadCameraPreset");
        test.host.docManager().connectDocs({3});
        EXPECT_TRUE(isConnected(3));
    }
}

}  // namespace
