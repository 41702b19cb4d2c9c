#include "ControlStatus.h"
#include "FakeHost.h"
#include "FakePlugin.h"
#include "ProbeBridge.h"

#include "DOC_Lock.h"
#include "DOC_Storage.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

/// A document that is in no state of its own but for what a test says.
class StatusDoc : public FakeDoc, public DOC_Lock, public DOC_Storage {
public:
    using FakeDoc::FakeDoc;

    bool connected = true;
    QString state;

    DOC_Lock& lock() override { return *this; }
    DOC_Storage& storage() override { return *this; }
    bool isConnected() const override { return connected; }
    bool isSdSelected() const override { return state == QLatin1String("sd"); }
    bool isQuikDriveSelected() const override { return state == QLatin1String("quik"); }
    bool isCFastSelected() const override { return state == QLatin1String("cfast"); }
    bool isSuspendReduce() const override { return state == QLatin1String("suspend"); }
    int getRecordState() const override { return 0; }
    bool isParamLocked() const override { return state == QLatin1String("locked"); }
    void setParamLock(bool) override {}
    QStringList getPluginNames() const override { return {}; }
    bool isPluginEffective(const QString&, int) const override { return false; }
    bool isLutCurve() const override { return state == QLatin1String("lut"); }
};

class NamedPlugin : public FakePlugin {
public:
    QString name;
    bool dragging = false;
    QString getName() const override { return name; }
    bool isDragging() const override { return dragging; }
};

/// A host in live mode without cameras and windows, where nothing goes on.
class ControlStatusTest : public testing::Test {
protected:
    QJsonObject status(DOC_Interface* doc = nullptr) {
        const QString text = bridge.getControlStatus(doc);
        const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
        EXPECT_EQ(text.toUtf8(), QJsonDocument(object).toJson(QJsonDocument::Compact)) << "compact";
        return object;
    }
    /// The names of the states that are on.
    QStringList on(DOC_Interface* doc = nullptr) {
        const QJsonObject object = status(doc);
        QStringList names;
        for (auto member = object.begin(); member != object.end(); ++member) {
            EXPECT_TRUE(member->isBool()) << member.key().toStdString();
            if (member->toBool()) names.append(member.key());
        }
        return names;
    }
    /// What has been switched since the host stood idle: "+name" and "-name".
    QStringList changes(DOC_Interface* doc = nullptr) {
        const QStringList now = on(doc);
        QStringList changed;
        for (const QString& name : now) {
            if (!idle.contains(name)) changed.append(QLatin1Char('+') + name);
        }
        for (const QString& name : idle) {
            if (!now.contains(name)) changed.append(QLatin1Char('-') + name);
        }
        return changed;
    }

    Journal journal;
    FakeHost host;
    ProbeBridge bridge{&host};
    const QStringList idle = on();
};

TEST_F(ControlStatusTest, NamesEveryState) {
    const QStringList off = {"ExistLowlight",
                             "IsActiveLensCalibration",
                             "IsActiveZebOnWren",
                             "IsAdjustingImage",
                             "IsAllLowlightOFF",
                             "IsAllLowlightON",
                             "IsAllWrenLockDevice",
                             "IsAutoExposureSetting",
                             "IsAutoExpoting",
                             "IsAutoFocussing",
                             "IsBgConverting",
                             "IsBgSaving",
                             "IsCTSReady",
                             "IsConflictPartition",
                             "IsCurrentDisconnected",
                             "IsCycleView",
                             "IsDetectingPixelDefect",
                             "IsDirectSaving",
                             "IsExternalMediaSelected",
                             "IsFileMode",
                             "IsFullScreen",
                             "IsHwTriggerSetting",
                             "IsImageOverlay",
                             "IsImageTriggerCapturing",
                             "IsImageTriggerDetecting",
                             "IsLensCalibration",
                             "IsLowlight",
                             "IsLutCurve",
                             "IsMemoryMode",
                             "IsModalDialogOpening",
                             "IsModalessDialogTextFocussing",
                             "IsMouseDragging",
                             "IsMultiWindow",
                             "IsNotLiveAndDeviceSettingPage",
                             "IsNotlivePage",
                             "IsOtherPluginOpen",
                             "IsPhaseAdjusting",
                             "IsPrefDialogOpening",
                             "IsReady",
                             "IsRecording",
                             "IsRecordingError",
                             "IsSendingNodeCommand",
                             "IsShading",
                             "IsSingleSelectedDocument",
                             "IsSingleWindow",
                             "IsSuspendReduce",
                             "IsTracking",
                             "IsVariableSetting",
                             "IsWren",
                             "IsWrenLockDevice"};
    QJsonObject expected;
    for (const QString& name : off) expected[name] = false;
    for (const char* name :
         {"HideTriggerTest", "IsLiveMode", "IsLiveNoAutoDownloadSetting", "IsNoneDocument", "IsNoneWaveformData",
          "IsNoneWindow", "IsNotCurrentAutoFocus", "IsNotRecording", "IsNotRedo", "IsNotUndo"}) {
        expected[QLatin1String(name)] = true;
    }
    EXPECT_EQ(QString::fromUtf8(QJsonDocument(status()).toJson()).toStdString(),
              QString::fromUtf8(QJsonDocument(expected).toJson()).toStdString());
    EXPECT_EQ(expected.size(), 60);
}

TEST_F(ControlStatusTest, AnswerOfTheHostSwitchesOneState) {
    QWidget window;
    host.mainWindow = &window;
    const QHash<QString, QString> states = {{"isRecording", "+IsRecording"},
                                            {"isBgSaving", "+IsBgSaving"},
                                            {"isBgConverting", "+IsBgConverting"},
                                            {"isDirectSaving 1", "+IsDirectSaving"},
                                            {"canUndo", "-IsNotUndo"},
                                            {"canRedo", "-IsNotRedo"},
                                            {"isLowlight", "+IsLowlight"},
                                            {"existLowlight", "+ExistLowlight"},
                                            {"isAllLowlight true", "+IsAllLowlightON"},
                                            {"isAllLowlight false", "+IsAllLowlightOFF"},
                                            {"isAutoExposureSetting", "+IsAutoExposureSetting"},
                                            {"isHwTriggerSetting", "+IsHwTriggerSetting"},
                                            {"isVariableSetting", "+IsVariableSetting"},
                                            {"isTracking", "+IsTracking"},
                                            {"isLensCalibration", "+IsLensCalibration"},
                                            {"hasWaveformData", "-IsNoneWaveformData"},
                                            {"isConflictPartition 1", "+IsConflictPartition"},
                                            {"isSendingNodeCommand", "+IsSendingNodeCommand"},
                                            {"isAdjustingImage", "+IsAdjustingImage"},
                                            {"isDetectingPixelDefect", "+IsDetectingPixelDefect"},
                                            {"isCycleView", "+IsCycleView"},
                                            {"isImageTriggerCapturing", "+IsImageTriggerCapturing"},
                                            {"isImageTriggerDetecting", "+IsImageTriggerDetecting"},
                                            {"isAutoFocussing", "+IsAutoFocussing"},
                                            {"isNotLivePage false", "+IsNotlivePage"},
                                            {"isNotLivePage true", "+IsNotLiveAndDeviceSettingPage"},
                                            {"isPrefDialogOpening", "+IsPrefDialogOpening"},
                                            {"isModalDialogOpening", "+IsModalDialogOpening"},
                                            {"isPhaseAdjusting", "+IsPhaseAdjusting"},
                                            {"getFullScreenWidget", "+IsFullScreen"},
                                            {"isTextBoxFocussing", "+IsModalessDialogTextFocussing"},
                                            {"isShading", "+IsShading"},
                                            {"isZebActive", "+IsActiveZebOnWren"},
                                            {"isOtherPluginOpen", "+IsOtherPluginOpen"},
                                            {"isCurrentAutoFocus 1", "-IsNotCurrentAutoFocus"},
                                            {"isSaving", "+IsAutoExpoting"}};
    for (auto question = states.begin(); question != states.end(); ++question) {
        host.yes = {question.key()};
        EXPECT_EQ(changes(), QStringList(question.value())) << question.key().toStdString();
    }
}

TEST_F(ControlStatusTest, CountsAndModes) {
    FakeDoc doc(4);
    host.docs[4] = &doc;
    host.windows = 1;
    host.selectedDocs = 1;
    EXPECT_EQ(changes(),
              QStringList({"+IsSingleSelectedDocument", "+IsSingleWindow", "-IsNoneDocument", "-IsNoneWindow"}));
    host.windows = 2;
    host.selectedDocs = 2;
    EXPECT_EQ(changes(), QStringList({"+IsMultiWindow", "-IsNoneDocument", "-IsNoneWindow"}));
    host.docs.clear();
    host.windows = 0;

    const QStringList states = {"", "+IsCTSReady", "+IsReady", "", "+IsRecordingError"};
    for (int state = 1; state < states.size(); ++state) {
        host.recordingState = state;
        QStringList expected = {"-IsNotRecording"};
        if (!states[state].isEmpty()) expected.prepend(states[state]);
        EXPECT_EQ(changes(), expected) << state;
    }
    host.recordingState = 0;

    host.yes = {"isSaving", "isCycleView", "isCycleViewBlocked", "isAllWrenLockDevice"};
    EXPECT_EQ(changes(), QStringList({"+IsAutoExpoting"})) << "cycling is blocked, the table does not run";
    host.wrenRunning = true;
    EXPECT_EQ(changes(), QStringList({"+IsAllWrenLockDevice", "+IsAutoExpoting", "+IsWren"}));
    host.mode = zeb::MemoryMode;
    EXPECT_EQ(changes(), QStringList({"+IsMemoryMode", "+IsWren", "-IsLiveMode", "-IsLiveNoAutoDownloadSetting",
                                      "-IsNotCurrentAutoFocus"}));
}

TEST_F(ControlStatusTest, TriggerTestTakesBothPreferences) {
    host.prefs["recording/useTriggerTest"] = true;
    EXPECT_EQ(changes(), QStringList());
    host.prefs["recording/AutoDownload"] = true;
    EXPECT_EQ(changes(), QStringList({"-HideTriggerTest", "-IsLiveNoAutoDownloadSetting"}));
    host.prefs["recording/useTriggerTest"] = false;
    EXPECT_EQ(changes(), QStringList({"-IsLiveNoAutoDownloadSetting"}));
}

TEST_F(ControlStatusTest, CurrentPlugin) {
    NamedPlugin plugin;
    host.currentPlugin = &plugin;
    for (const auto& [name, expected] : QList<QPair<QString, QStringList>>{
             {"lenscalib", {"+IsActiveLensCalibration"}}, {"imageoverlay", {"+IsImageOverlay"}}, {"rotate", {}}}) {
        plugin.name = name;
        EXPECT_EQ(changes(), expected);
    }
    plugin.dragging = true;
    EXPECT_EQ(changes(), QStringList({"+IsMouseDragging"}));
}

TEST_F(ControlStatusTest, DocumentIsTheCurrentOneOrTheOneGiven) {
    StatusDoc current(1);
    StatusDoc other(2);
    host.currentDoc = &current;
    EXPECT_EQ(changes(), QStringList());
    for (const auto& [state, expected] : QList<QPair<QString, QString>>{{"lut", "+IsLutCurve"},
                                                                        {"suspend", "+IsSuspendReduce"},
                                                                        {"sd", "+IsExternalMediaSelected"},
                                                                        {"quik", "+IsExternalMediaSelected"},
                                                                        {"cfast", "+IsExternalMediaSelected"}}) {
        current.state = state;
        EXPECT_EQ(changes(), QStringList(expected));
        EXPECT_EQ(changes(&other), QStringList());
    }
    current.state.clear();
    current.connected = false;
    EXPECT_EQ(changes(), QStringList({"+IsCurrentDisconnected"}));

    other.state = "locked";
    EXPECT_EQ(changes(&other), QStringList()) << "only the table locks";
    host.wrenRunning = true;
    EXPECT_EQ(changes(&other), QStringList({"+IsWren", "+IsWrenLockDevice"}));
    host.mode = zeb::FileMode;
    EXPECT_FALSE(on(&other).contains("IsWrenLockDevice"));
}

TEST_F(ControlStatusTest, FailureIsShownAndLeavesNothing) {
    journal.take();
    for (const char* operation : {"existLowlight", "isTracking", "getPref"}) {
        host.failing = operation;
        EXPECT_EQ(bridge.getControlStatus(), QString());
        EXPECT_EQ(journal.take(), QStringList({"pause", QString("errorHandler %1").arg(operation), "resume"}));
    }
}

}  // namespace
