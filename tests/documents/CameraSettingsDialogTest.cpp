#include "ChooseFile.h"
#include "Files.h"
#include "JS_Mediator_CameraSettingsDialog.h"
#include "support/TestHost.h"

#include <QDir>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace {

const char* const ToFile = R"({"dialogMode":0})";

/// Eight cameras that are connected, 3 and 4 heads of one device; the first selected one is Ramp.
class CameraSettingsDialog : public testing::Test, protected TestHost {
protected:
    CameraSettingsDialog() : TestHost(readRig("eight-mixed")) {
        for (Camera* each : host.cameras().all()) {
            each->change({{"connected", true}});
        }
        host.docManager().setSelectedDocs({2, 1}, 0);
        QObject::connect(&bridge, &JS_Mediator_Dialog::accept, [this] { ++accepted; });
    }

    void name(const QString& own, bool original = true, bool addTime = false, const QString& format = "'day'") {
        bridge.sendFileNameDialogData(
            QString(R"({"userFileName":"%1","original":%2,"addTime":%3,"addTimeFormat":"%4"})")
                .arg(own, original ? "true" : "false", addTime ? "true" : "false", format));
    }
    /// The files that a press of OK has the host write, the dialog closing after each.
    QStringList written() {
        accepted = 0;
        calls();
        bridge.ok(ToFile);
        QStringList files = calls("saveSettingsFile");
        EXPECT_EQ(accepted, files.size());
        return files.replaceInStrings("saveSettingsFile ", "").replaceInStrings(QRegularExpression(" 0$"), "");
    }

    int accepted = 0;
    JS_Mediator_CameraSettingsDialog bridge{&host, folder.filePath("made/here")};
};

TEST_F(CameraSettingsDialog, MakesTheNameOfTheFile) {
    EXPECT_TRUE(QDir(folder.filePath("made/here")).exists());
    EXPECT_EQ(bridge.recvFileNameDialogData(),
              R"({"addTime":false,"addTimeFormat":"yyyyMMdd_HHmmss","original":false,"userFileName":""})");
    const struct {
        bool own;
        bool addTime;
        DocKeyList selected;
        const char* base;
        const char* whole;
    } cases[] = {
        {true, false, {2}, "mine", "mine.rigx"},  {true, true, {2}, "mine", "mine_day.rigx"},
        {false, false, {2}, "Ramp", "Ramp.rigx"}, {false, true, {2}, "Ramp", "Ramp_day.rigx"},
        {false, false, {}, "", ".rigx"},          {false, true, {}, "", "day.rigx"},
    };
    for (const auto& c : cases) {
        host.docManager().setSelectedDocs(c.selected, 0);
        name("mine", c.own, c.addTime);
        EXPECT_EQ(bridge.getFileName(), c.base);
        EXPECT_EQ(bridge.getFileName(true), c.whole);
    }
    EXPECT_EQ(bridge.getFilePathSettings(),
              QString(R"({"FileName":"","FolderPath":"%1"})").arg(folder.filePath("made/here")));
    EXPECT_EQ(bridge.recvFileNameDialogData(),
              R"({"addTime":true,"addTimeFormat":"'day'","original":false,"userFileName":"mine"})");
}

TEST_F(CameraSettingsDialog, RefusesANameThatIsNone) {
    const QString here = folder.filePath("made/here/");
    const QString bad = "Invalid filename.";
    QDir().mkpath(here + "a folder.rigx");
    QDir().mkpath(folder.filePath("50 %"));
    const QString longest(260 - here.size() - 5, 'n');
    const QString tooLong = "The path of the target is too long.";
    const QStringList cases[] = {{"", bad},     {"a folder", bad},        {"../up", bad}, {"12:30", bad},
                                 {"at %", bad}, {longest + 'n', tooLong}, {longest, ""},  {"good.name", ""}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.first().toStdString());
        name(c.first());
        EXPECT_EQ(written(), c.last().isEmpty() ? QStringList(here + c.first() + ".rigx") : QStringList());
        EXPECT_EQ(desk.take().join('|'), c.last());
    }
    name("mine", true, true, "hh:mm");
    EXPECT_EQ(written(), QStringList());
    EXPECT_EQ(desk.take(), QStringList(bad)) << "by the format of the time";
    chooseFile({});
    EXPECT_FALSE(bridge.openFolder());
    chooseFile(folder.filePath("50 %"));
    EXPECT_TRUE(bridge.openFolder());
    EXPECT_EQ(host.prefs().value("rigx/path").toString(), folder.filePath("50 %"));
    name("mine");
    EXPECT_EQ(written(), QStringList());
    EXPECT_EQ(desk.take(), QStringList(bad)) << "by the folder";
    chooseFile(here + longest + ".rigx");
    EXPECT_TRUE(bridge.openFile());
}

TEST_F(CameraSettingsDialog, StaysWhenNothingIsWritten) {
    const QString file = folder.filePath("made/here/mine.rigx");
    const QString question = "Do you want to overwrite it?";
    name("mine");
    EXPECT_EQ(written(), QStringList(file));
    write(file, "old");
    desk.answers = {{false, false}};
    EXPECT_EQ(written(), QStringList());
    EXPECT_EQ(desk.take(), QStringList(question));
    host.faults().plant(FaultPlan::Host, "saveSettingsFile", {"no <disk>"});
    bridge.ok(ToFile);
    EXPECT_EQ(desk.take(), QStringList({question, "no <disk>"}));
    EXPECT_EQ(accepted, 0);
    EXPECT_EQ(contentOf(file), "old");
    EXPECT_FALSE(host.liveLoop().isLivePaused());
    host.faults().clear();
    EXPECT_EQ(written(), QStringList(file));
}

TEST_F(CameraSettingsDialog, StoresPresetsOfTheDevices) {
    camera(1).change({{"name", "<b>Gate</b>"}, {"preset", 2}});
    camera(3).change({{"connected", false}});
    host.faults().plant(6, "getCameraPresetInfo", {"no answer"});
    QStringList rows;
    for (const QVariant& each : bridge.getPresetList()) {
        const QVariantMap row = each.toMap();
        QStringList texts;
        for (const char* member : {"key", "name", "ipaddress", "devicename", "selNone"}) {
            texts += row[member].toString();
        }
        for (const QVariant& preset : row["presets"].toList()) {
            texts += preset.toMap()["presetno"].toString() + (preset.toMap()["selected"].toBool() ? "*" : "");
        }
        rows += texts.join(' ');
    }
    EXPECT_EQ(
        rows,
        QStringList({"1 <b>Gate</b> 192.168.0.11 standard false 1 2* 3 4", "2 Ramp 192.168.0.12 standard true 1 2 3 4",
                     "4 Nozzle right 192.168.0.13 two-head true 1 2 3 4 5 6 7", "5 Roof 192.168.0.14 compact true",
                     "7 Impact 192.168.0.16 fast true 1 2 3 4", "8 Stand-in 192.168.0.17 dummy true"}));
    EXPECT_EQ(desk.take(), QStringList("Track: no answer"));

    const QString edit = "beginDocEdit;beginDocEditNotify;restartLive 0 1 1;%1;endDocEdit;commitDocEdit";
    const auto stored = [&](const char* list) {
        calls();
        bridge.ok(QString(R"({"dialogMode":1,"presetList":[%1]})").arg(list));
        return calls("Preset|DocEdit|restartLive").join(';');
    };
    EXPECT_EQ(stored(R"({"key":2,"value":3},{"key":"1","value":"1"},{"key":4,"value":0},{"key":99,"value":1},
                        {"key":"x","value":1},7)"),
              edit.arg("saveCameraPreset 1 1;saveCameraPreset 2 3"));
    EXPECT_EQ(bridge.getDialogMode(), 1);
    EXPECT_EQ(stored(R"({"key":1,"value":1},{"key":2,"value":5},{"key":4,"value":1})"),
              edit.arg("saveCameraPreset 1 1;saveCameraPreset 2 5"));
    EXPECT_EQ(desk.take().size(), 1);
    EXPECT_EQ(accepted, 1) << "not by the preset that the camera has not";
    EXPECT_FALSE(host.liveLoop().isLivePaused());
}

}  // namespace
