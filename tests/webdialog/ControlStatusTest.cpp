#include "Camera.h"
#include "ControlStatus.h"
#include "Files.h"
#include "ProbeBridge.h"
#include "support/StubPlugin.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

/// A host in live mode with two cameras, where nothing goes on.
class ControlStatusTest : public BridgeTest {
protected:
    ControlStatusTest() {
        change(3, "connected", false);
        idle = status();
    }

    QJsonObject status(DOC_Interface* doc = nullptr) {
        const QByteArray text = bridge.getControlStatus(doc).toUtf8();
        const QJsonObject object = QJsonDocument::fromJson(text).object();
        EXPECT_EQ(text, QJsonDocument(object).toJson(QJsonDocument::Compact)) << "compact";
        return object;
    }
    /// What has been switched since the host stood idle: "+name" and "-name".
    QStringList changes(DOC_Interface* doc = nullptr) {
        const QJsonObject now = status(doc);
        QStringList changed;
        for (const bool on : {true, false}) {
            for (const QString& name : now.keys()) {
                if (now[name].toBool() == on && idle[name].toBool() != on) {
                    changed.append((on ? '+' : '-') + name);
                }
            }
        }
        return changed;
    }
    void change(DOCKEY key, const char* member, const QVariant& value) {
        camera(key).change({{QLatin1String(member), value}});
    }

    QJsonObject idle;
};

TEST_F(ControlStatusTest, NamesEveryState) {
    EXPECT_EQ(QJsonDocument(idle).toJson().toStdString(),
              contentOf(":/webdialog/expected/controlstatus.json").toStdString());
}

TEST_F(ControlStatusTest, AStateOfTheHostSwitchesTheOneOfItsName) {
    QWidget window;
    host.setMainWindow(&window);
    QMap<QString, QStringList> others = {{"IsCTSReady", {"+IsCTSReady", "-IsNotRecording"}},
                                         {"IsCurrentAutoFocus", {"-IsNotCurrentAutoFocus"}},
                                         {"IsNoneWindow", {"+IsNoneWindow", "-IsMultiWindow"}},
                                         {"IsReady", {"+IsReady", "-IsNotRecording"}},
                                         {"IsRecording", {"+IsRecording", "-IsNotRecording"}},
                                         {"IsRecordingError", {"+IsRecordingError", "-IsNotRecording"}},
                                         {"IsSaving", {"+IsAutoExpoting"}}};
    for (const char* silent : {"IsAllLowlightOFF", "IsAllWrenLockDevice", "IsApplicationClosing", "IsCycleViewBlocked",
                               "IsMVersion", "IsSelectionKept", "IsTriggerTesting", "IsUpdateIgnore",
                               "IsWaveDataAcquisition", "IsWindowStateSaveSuppressed"}) {
        others.insert(silent, {});
    }
    for (const QString& flag : host.flags().names()) {
        host.flags().set(flag, true);
        EXPECT_EQ(changes(), others.value(flag, {'+' + flag})) << flag.toStdString();
        host.flags().set(flag, false);
    }
}

TEST_F(ControlStatusTest, FollowsWhatHappens) {
    StubPlugin lens("lenscalib");
    StubPlugin overlay("imageoverlay");
    StubPlugin other("rotate");
    const auto pref = [&](const char* key, bool on) { host.prefs().setValue(QLatin1String("recording/") + key, on); };
    const auto flags = [&](bool on) {
        for (const char* flag : {"IsSaving", "IsCycleView", "IsCycleViewBlocked", "IsAllWrenLockDevice"}) {
            host.flags().set(flag, on);
        }
    };
    const auto enter = [&](int mode) { host.appStatus().enterMode(mode); };
    const auto plugin = [&](PLG_Interface* current) { host.appStatus().setCurrentPlugin(current); };
    const struct {
        std::function<void()> happens;
        const char* changes;
    } steps[] = {
        {[&] { change(2, "connected", false); }, "+IsSingleWindow -IsMultiWindow"},
        {[&] { change(2, "connected", true); }, "+IsMultiWindow -IsSingleWindow"},
        {[&] { change(2, "selected", true); }, "+IsSingleSelectedDocument"},
        {[&] { change(1, "selected", true); }, "-IsSingleSelectedDocument"},
        {[&] { flags(true); }, "+IsAutoExpoting"},  // cycling is blocked, the table does not run
        {[&] { host.appStatus().setWrenRunning(true); }, "+IsAllWrenLockDevice +IsWren"},
        {[&] { enter(zeb::MemoryMode); },
         "+IsMemoryMode -IsAllWrenLockDevice -IsAutoExpoting -IsLiveMode -IsNotCurrentAutoFocus"},
        {[&] { flags(false), enter(zeb::LiveMode); }, "+IsLiveMode +IsNotCurrentAutoFocus -IsMemoryMode"},
        {[&] { pref("useTriggerTest", false); }, "+HideTriggerTest"},
        {[&] { pref("AutoDownload", false); }, "+IsLiveNoAutoDownloadSetting"},
        {[&] { pref("useTriggerTest", true); }, ""},
        {[&] { enter(zeb::MemoryMode); },
         "+IsMemoryMode -IsLiveMode -IsLiveNoAutoDownloadSetting -IsNotCurrentAutoFocus"},
        {[&] { enter(zeb::LiveMode), pref("AutoDownload", true); },
         "+IsLiveMode +IsNotCurrentAutoFocus -HideTriggerTest -IsMemoryMode"},
        {[&] { plugin(&lens); }, "+IsActiveLensCalibration"},
        {[&] { lens.dragging = true; }, "+IsMouseDragging"},
        {[&] { plugin(&overlay); }, "+IsImageOverlay -IsActiveLensCalibration -IsMouseDragging"},
        {[&] { plugin(&other); }, "-IsImageOverlay"},
        {[&] { change(2, "lutCurve", true); }, "+IsLutCurve"},
        {[&] { change(2, "suspendReduce", true); }, "+IsSuspendReduce"},
        {[&] { change(2, "sd", true); }, "+IsExternalMediaSelected"},
        {[&] { change(2, "sd", false), change(2, "quikDrive", true); }, ""},
        {[&] { change(2, "quikDrive", false), change(2, "cfast", true); }, ""},
        {[&] { change(2, "cfast", false); }, "-IsExternalMediaSelected"},
        {[&] { change(2, "locked", true); }, "+IsWrenLockDevice"},
        {[&] { enter(zeb::FileMode); },
         "+IsFileMode +IsNoneDocument +IsNoneWindow -IsLiveMode -IsLutCurve -IsMultiWindow -IsNotCurrentAutoFocus "
         "-IsSuspendReduce -IsWrenLockDevice"},
        {[&] { enter(zeb::LiveMode), host.appStatus().setWrenRunning(false); },
         "+IsLiveMode +IsLutCurve +IsMultiWindow +IsNotCurrentAutoFocus +IsSuspendReduce -IsFileMode -IsNoneDocument "
         "-IsNoneWindow -IsWren"},
        {[&] { change(2, "connected", false); }, "+IsCurrentDisconnected +IsSingleWindow -IsMultiWindow"},
        {[&] { host.appStatus().setWrenRunning(true); }, "+IsWren +IsWrenLockDevice"},
    };
    for (const auto& [happens, expected] : steps) {
        happens();
        EXPECT_EQ(changes().join(' '), expected);
        idle = status();
    }
    EXPECT_EQ(changes(doc(1)).join(' '), "-IsCurrentDisconnected -IsLutCurve -IsSuspendReduce -IsWrenLockDevice")
        << "of the one given in place of the current one";
}

QSet<QString> keysOf(const QString& json) {
    const QStringList keys = QJsonDocument::fromJson(json.toUtf8()).object().keys();
    return QSet<QString>(keys.begin(), keys.end());
}

TEST_F(ControlStatusTest, AFailureIsToldOnceUntilTheStatesAreWholeAgain) {
    change(1, "selected", true);
    const QString whole = bridge.getControlStatus();
    const QStringList told{"pause", "critical: \"Camera 1: no answer\"", "error <Camera 1: no answer>", "resume"};
    const QStringList over{"pause", "critical: \"Camera 1: no answer\" is no longer met, after 2 times.", "resume"};
    for (int i = 0; i < 2; ++i) {
        host.faults().plant(1, "isSuspendReduce", {"no answer", 0, false});
        course.take();
        const QSet<QString> missing = keysOf(whole) - keysOf(bridge.getControlStatus());
        EXPECT_EQ(missing, (QSet<QString>{"IsSuspendReduce", "IsExternalMediaSelected"})) << "its own and no others";
        EXPECT_EQ(course.take(), told);
        bridge.getControlStatus();
        EXPECT_EQ(course.take(), QStringList({"pause", "resume"}));
        host.faults().clear();
        EXPECT_EQ(bridge.getControlStatus(), whole);
        EXPECT_EQ(course.take(), over);
    }
    host.faults().plant(FaultPlan::Host, "*", {"no answer"});
    EXPECT_EQ(bridge.getControlStatus(), QString()) << "nothing can be said of a host that fails";
}

/// Three cameras, the second not connected.
class DeviceInfo : public BridgeTest {
protected:
    void SetUp() override { camera(2).set(&CameraState::connected, false); }

    QString keys(bool isMinilist) {
        QStringList texts;
        for (const QVariant& device : bridge.getDeviceInfoList(isMinilist)) {
            texts += device.toMap()["key"].toString();
        }
        return texts.join(' ');
    }
    QJsonObject entry(int index) {
        return QJsonObject::fromVariantMap(bridge.getDeviceInfoList(false).value(index).toMap());
    }

    QString values(int index) {
        QStringList texts;
        for (const QVariant& value : entry(index).toVariantMap()) {
            texts += value.toString();
        }
        return texts.join('|');
    }
};

TEST_F(DeviceInfo, OnlyTheShortListInLiveModeLeavesOut) {
    EXPECT_FALSE(bridge.getConnectedCameraShowing());
    const struct {
        int mode;
        bool mini;
        bool onlyConnected;
        const char* keys;
    } cases[] = {
        {zeb::LiveMode, false, false, "1 2 3"},  {zeb::LiveMode, false, true, "1 2 3"},
        {zeb::LiveMode, true, false, "1 2 3"},   {zeb::LiveMode, true, true, "1 3"},
        {zeb::MemoryMode, true, true, "1 2 3"},  {zeb::FileMode, true, true, ""},
        {zeb::MemoryMode, false, true, "1 2 3"},
    };
    for (const auto& row : cases) {
        host.appStatus().enterMode(row.mode);
        bridge.setConnectedCameraShowing(row.onlyConnected);
        EXPECT_EQ(bridge.getConnectedCameraShowing(), row.onlyConnected);
        EXPECT_EQ(keys(row.mini), row.keys) << row.mini << row.mode << row.onlyConnected;
    }
}

TEST_F(DeviceInfo, TellsNamesAndMarks) {
    host.setRig(readRig(":/webdialog/rigs/functions.json"));
    camera(2).change({{"alias", "alias"}});
    for (const char* mark : {"connected", "mobile", "selected", "slowLink", "wifi"}) {
        camera(2).change({{mark, true}});
    }
    EXPECT_EQ(entry(1).keys().join(' '),
              "cameraname con-wifi devicename dummy found headno ipaddress key mobile selected shutdown sup-linkspeed "
              "sup-wifi");
    EXPECT_EQ(values(1), QString(camera(2).name() + "|connected|alias|dummy|found|2|192.168.0.10|2|mobile|"
                                                    "ui-selected|sup-shutdown|sup-linkspeed|sup-wifi"));
    EXPECT_EQ(values(2), "\"><img src=x>||log|||1|192.168.0.11|3|||||");
}

TEST_F(DeviceInfo, ACameraThatFailsEndsTheList) {
    camera(2).set(&CameraState::connected, true);
    host.faults().plant(2, "isFunctionSupported", {"no answer", 0, false});
    EXPECT_EQ(keys(false), "1 2");
    EXPECT_EQ(course.take(),
              QStringList({"pause", "critical: \"Camera 2: no answer\"", "error <Camera 2: no answer>", "resume"}));
    EXPECT_EQ(entry(0)["found"], "found");
    EXPECT_EQ(entry(1)["cameraname"], "Camera 2");
    EXPECT_EQ(entry(1)["found"], "");
    EXPECT_EQ(entry(1)["sup-linkspeed"], "");
}

TEST_F(DeviceInfo, SelectedKeysAreDecimalTexts) {
    host.docManager().setSelectedDocs({1, 3}, 0);
    EXPECT_EQ(bridge.getSelectedDockey(), QVariantList({"1", "3"}));
}

}  // namespace
