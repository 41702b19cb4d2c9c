#include "Camera.h"
#include "ControlStatus.h"
#include "ProbeBridge.h"
#include "support/FaultyHost.h"
#include "support/StubPlugin.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

/// A host in live mode with two cameras, where nothing goes on.
class ControlStatusTest : public testing::Test {
protected:
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
        host.camera(key).change({{QLatin1String(member), value}});
    }

    Course course;
    FaultyHost host{2};
    ProbeBridge bridge{&host};
    QJsonObject idle = status();
};

TEST_F(ControlStatusTest, NamesEveryState) {
    QFile file(":/webdialog/expected/controlstatus.json");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QJsonDocument(idle).toJson().toStdString(), file.readAll().toStdString());
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

TEST_F(ControlStatusTest, CountsAndModes) {
    change(2, "connected", false);
    EXPECT_EQ(changes(), QStringList({"+IsSingleWindow", "-IsMultiWindow"}));
    change(2, "connected", true);
    change(1, "selected", true);
    EXPECT_EQ(changes(), QStringList("+IsSingleSelectedDocument"));
    change(2, "selected", true);
    EXPECT_EQ(changes(), QStringList());

    for (const char* flag : {"IsSaving", "IsCycleView", "IsCycleViewBlocked", "IsAllWrenLockDevice"}) {
        host.flags().set(flag, true);
    }
    EXPECT_EQ(changes(), QStringList("+IsAutoExpoting")) << "cycling is blocked, the table does not run";
    host.appStatus().setWrenRunning(true);
    EXPECT_EQ(changes(), QStringList({"+IsAllWrenLockDevice", "+IsAutoExpoting", "+IsWren"}));
    host.enterMode(zeb::MemoryMode);
    EXPECT_EQ(changes(), QStringList({"+IsMemoryMode", "+IsWren", "-IsLiveMode", "-IsNotCurrentAutoFocus"}));
}

TEST_F(ControlStatusTest, PreferencesAndTheCurrentPlugin) {
    StubPlugin lens("lenscalib");
    StubPlugin overlay("imageoverlay");
    StubPlugin other("rotate");
    const auto pref = [&](const char* key, bool on) { host.prefs().setValue(QLatin1String("recording/") + key, on); };
    const std::pair<std::function<void()>, const char*> steps[] = {
        {[&] { pref("useTriggerTest", false); }, "+HideTriggerTest"},
        {[&] { pref("AutoDownload", false); }, "+HideTriggerTest +IsLiveNoAutoDownloadSetting"},
        {[&] { pref("useTriggerTest", true); }, "+HideTriggerTest +IsLiveNoAutoDownloadSetting"},
        {[&] { pref("AutoDownload", true); }, ""},
        {[&] { host.appStatus().setCurrentPlugin(&lens); }, "+IsActiveLensCalibration"},
        {[&] { lens.dragging = true; }, "+IsActiveLensCalibration +IsMouseDragging"},
        {[&] { host.appStatus().setCurrentPlugin(&overlay); }, "+IsImageOverlay"},
        {[&] { host.appStatus().setCurrentPlugin(&other); }, ""},
    };
    for (const auto& [step, expected] : steps) {
        step();
        EXPECT_EQ(changes().join(' '), expected);
    }
    pref("AutoDownload", false);
    host.enterMode(zeb::MemoryMode);
    EXPECT_FALSE(changes().contains("+IsLiveNoAutoDownloadSetting"));
}

TEST_F(ControlStatusTest, DocumentIsTheCurrentOneOrTheOneGiven) {
    change(1, "selected", true);
    idle = status();
    for (const auto& [member, expected] : QList<QPair<const char*, QString>>{{"lutCurve", "+IsLutCurve"},
                                                                             {"suspendReduce", "+IsSuspendReduce"},
                                                                             {"sd", "+IsExternalMediaSelected"},
                                                                             {"quikDrive", "+IsExternalMediaSelected"},
                                                                             {"cfast", "+IsExternalMediaSelected"}}) {
        change(1, member, true);
        EXPECT_EQ(changes(), QStringList(expected));
        EXPECT_EQ(changes(host.doc(2)), QStringList());
        change(1, member, false);
    }
    change(1, "connected", false);
    EXPECT_EQ(changes(), QStringList({"+IsCurrentDisconnected", "+IsSingleWindow", "-IsMultiWindow"}));
    change(1, "connected", true);

    change(2, "locked", true);
    EXPECT_EQ(changes(host.doc(2)), QStringList()) << "only the table locks";
    host.appStatus().setWrenRunning(true);
    EXPECT_EQ(changes(host.doc(2)), QStringList({"+IsWren", "+IsWrenLockDevice"}));
    EXPECT_EQ(changes(), QStringList("+IsWren"));
    host.enterMode(zeb::FileMode);
    EXPECT_FALSE(changes(host.doc(2)).contains("+IsWrenLockDevice"));
}

QSet<QString> keysOf(const QString& json) {
    const QStringList keys = QJsonDocument::fromJson(json.toUtf8()).object().keys();
    return QSet<QString>(keys.begin(), keys.end());
}

TEST_F(ControlStatusTest, AFailureIsToldOnceUntilTheStatesAreWholeAgain) {
    change(1, "selected", true);
    const QString whole = bridge.getControlStatus();
    const QStringList told{"pause", "critical: \"Camera 1: no answer\"", "errorHandler Camera 1: no answer", "resume"};
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

}  // namespace
