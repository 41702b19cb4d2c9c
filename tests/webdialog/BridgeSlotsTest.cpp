#include "Camera.h"
#include "ProbeBridge.h"
#include "RangeMax.h"
#include "SlotCall.h"
#include "ZebPrefsDialog.h"
#include "support/StubPlugin.h"

#include <QDialog>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

class FakePrefsDialog : public ZebPrefsDialog {
public:
    void setPage(const QString& page) override { Course::note("setPage " % page); }
    int exec() override {
        Course::note("exec");
        return QDialog::Accepted;
    }
};

class BridgeSlots : public BridgeTest {
protected:
    /// What happens in `act`, but for the pause around it.
    QStringList during(const std::function<void()>& act) {
        course.take();
        act();
        QStringList entries = course.take();
        EXPECT_EQ(entries.isEmpty() ? QString() : entries.last(), "resume");
        return entries.mid(1, entries.size() - 2);
    }

    void SetUp() override { host.appStatus().registerPlugin(&binning); }

    StubPlugin binning{QStringLiteral("binning")};
};

/// The lines around an operation of the base, `args` as in the log.
QStringList operation(const QString& name, const QString& args, QStringList work, int mask = 63) {
    work.prepend(QStringLiteral("info: [ENTER] \"JS_Mediator::%1\" \"%2\"").arg(name, args));
    work.append(QStringLiteral("updateUI %1 true").arg(mask));
    work.append(QStringLiteral("info: [LEAVE] \"JS_Mediator::%1\"").arg(name));
    return work;
}

QStringList traced(const QString& name, const QString& args, const QStringList& work) {
    QStringList lines = operation(name, args, work);
    lines.removeAt(lines.size() - 2);
    return lines;
}

TEST_F(BridgeSlots, PluginsOpenAndClose) {
    EXPECT_EQ(during([&] { bridge.openPlugin("lut"); }), operation("openPlugin", "[name:lut]", {"openPlugin lut"}));
    EXPECT_EQ(during([&] { bridge.openPlugin("binning"); }),
              operation("openPlugin", "[name:binning]",
                        {"pauseLive 0", "openPlugin binning", "refresh 1 true", "refresh 2 true", "refresh 3 true",
                         "resumeLive"}));
    EXPECT_EQ(during([&] { bridge.closePlugin(); }), operation("closePlugin", "", {"closePanel"}));
    EXPECT_EQ(during([&] { bridge.closePlugin("lut"); }),
              operation("closePlugin", "[name:lut]",
                        {"deterUpdateUI true", "closePlugin lut", "closeAuxiliaryPanel", "deterUpdateUI false"}))
        << "the tool itself leaves its panel";
}

TEST_F(BridgeSlots, AFailureOfTheGuardReachesTheUser) {
    host.faults().plant(2, "refresh", {"no answer", 0, false});
    EXPECT_EQ(during([&] { bridge.openPlugin("binning"); }).last(), "error <Camera 2: no answer>");
    fail("openPlugin");
    EXPECT_EQ(during([&] { bridge.openPlugin("binning"); }).last(), "error <no answer>");
    EXPECT_FALSE(host.liveLoop().isLivePaused());
    EXPECT_TRUE(host.docManager().getDocMutex()->tryLock());
    host.docManager().getDocMutex()->unlock();
}

TEST_F(BridgeSlots, PreferencesDialog) {
    FakePrefsDialog dialog;
    EXPECT_EQ(bridge.openPrefsDialog("Save"), 0) << "there is none";
    windows.prefs = &dialog;
    EXPECT_EQ(during([&] { EXPECT_EQ(bridge.openPrefsDialog("Save"), QDialog::Accepted); }),
              traced("openPrefsDialog", "[page:Save]", {"stopForPrefs", "setPage <Save>", "exec"}));
    host.appStatus().enterMode(zeb::MemoryMode);
    EXPECT_EQ(during([&] { bridge.openPrefsDialog(); }), traced("openPrefsDialog", "[page:]", {"setPage <>", "exec"}));
    host.appStatus().enterMode(zeb::LiveMode);
    fail("stopForPrefs");
    EXPECT_EQ(bridge.openPrefsDialog(), 0);
}

TEST_F(BridgeSlots, OneLineOfTheHost) {
    const struct {
        std::function<void()> act;
        QStringList calls;
    } cases[] = {
        {[&] { bridge.openAbouZebDialog(); }, traced("openAbouZebDialog", "", {"openAboutDialog"})},
        {[&] { bridge.copySelectAreaToClipboard(); }, traced("copySelectAreaToClipboard", "", {"copyToClipboard 2"})},
        {[&] { bridge.setDisableAllQuickTool(); },
         traced("setDisableAllQuickTool", "", {"setActiveQuickTool", "refreshDocList 1", "refreshTools"})},
        {[&] { bridge.setConnectedCameraShowing(true); },
         {"setPrefBool devicemanager/connectedCameraOnlyShowing true"}},
        {[&] { bridge.checkRestoredPrefs(); }, {}},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(during(row.act), row.calls);
    }
    host.setPrefsRestored(0);
    EXPECT_EQ(during([&] { bridge.checkRestoredPrefs(); }), QStringList("setPrefsRestored 1"));
}

TEST_F(BridgeSlots, YesAndNo) {
    const struct {
        const char* flag;
        std::function<bool()> ask;
    } cases[] = {
        {"IsApplicationClosing", [&] { return !bridge.isReady(); }},
        {"IsMVersion", [&] { return bridge.isMVersion(); }},
        {"IsUpdateIgnore", [&] { return bridge.isUpdateIgnore(); }},
        {"IsWaveDataAcquisition", [&] { return bridge.isWaveDataAcquisition(); }},
    };
    for (const auto& row : cases) {
        host.flags().set(row.flag, true);
        for (const auto& asked : cases) {
            EXPECT_EQ(asked.ask(), &asked == &row) << asked.flag;
        }
        host.flags().set(row.flag, false);
    }
    EXPECT_FALSE(bridge.isConnected());
    EXPECT_FALSE(bridge.isPlaying());
    camera(3).set(&CameraState::selected, true);
    EXPECT_TRUE(bridge.isConnected());
    EXPECT_FALSE(bridge.isPlaying());
    camera(3).change({{"connected", false}, {"playing", true}});
    EXPECT_FALSE(bridge.isConnected());
    EXPECT_TRUE(bridge.isPlaying());
}

TEST_F(BridgeSlots, SelectionOfOne) {
    bridge.setUpdateMask(4);
    const struct {
        const char* text;
        const char* keys;
    } cases[] = {
        {"12", " 12 0"}, {"4294967295", " 4294967295 0"}, {"abc", "  0"}, {"", "  0"},         {"-1", "  0"},
        {"0x10", "  0"}, {"4294967296", "  0"},           {"1.5", "  0"}, {"12<b>'\"", "  0"},
    };
    for (const auto& row : cases) {
        const QStringList entries = during([&] { bridge.setSelectDoc(row.text); });
        EXPECT_TRUE(entries.first().startsWith("info: [ENTER] \"JS_Mediator::setSelectDocSub\" \"[docKey:"));
        EXPECT_EQ(entries.mid(1),
                  QStringList({"deterUpdateUI true", QString("setSelectedDocs") + row.keys, "deterUpdateUI false",
                               "updateUI 63 true", "info: [LEAVE] \"JS_Mediator::setSelectDocSub\""}))
            << row.text;
    }
    fail("setSelectedDocs");
    EXPECT_EQ(during([&] { bridge.setSelectDoc("1"); }).last(), "error <no answer>");
    EXPECT_EQ(during([&] { bridge.updateUI(); }), QStringList("updateUI 4 true"));
}

TEST_F(BridgeSlots, SelectionOfAllKeepsTheCurrentDocument) {
    bridge.setUpdateMask(4);
    const QStringList all = {"deterUpdateUI true", "selectAllDocs", "deterUpdateUI false"};
    const QStringList without = QStringList("clearCurrentPlugin") + operation("selectAllDocsSub", "", all);
    EXPECT_EQ(during([&] { bridge.selectAllDocs(); }), without);
    host.docManager().setSelectedDocs({2}, 0);
    EXPECT_EQ(during([&] { bridge.selectAllDocs(); }), without + QStringList("setCurrentDoc 2 1"));

    for (const char* failing : {"clearCurrentPlugin", "selectAllDocs", "setCurrentDoc"}) {
        fail(failing);
        EXPECT_EQ(during([&] { bridge.selectAllDocs(); }).last(), "error <no answer>") << failing;
        host.faults().clear();
        EXPECT_EQ(during([&] { bridge.updateUI(); }), QStringList("updateUI 4 true"));
    }
}

TEST_F(BridgeSlots, RangeOfPixels) {
    const struct {
        std::optional<zeb::ImageFormat> format;
        int max;
    } cases[] = {{{}, 255},       {{{8, 7}}, 255},       {{{4, 12}}, 15},       {{{16, 12}}, 4095}, {{{16, 10}}, 1023},
                 {{{9, 8}}, 255}, {{{32, 31}}, INT_MAX}, {{{64, 64}}, INT_MAX}, {{{-5, -5}}, 0}};
    for (const auto& row : cases) {
        EXPECT_EQ(largestPixelValue(row.format), row.max);
    }

    EXPECT_EQ(bridge.getRangeMax(), 255);
    host.prefs().setValue("display/DisplayWithRealBitDepth", true);
    EXPECT_EQ(bridge.getRangeMax(), 255) << "no document";
    host.setRig(readRig(":/webdialog/rigs/functions.json"));
    camera(1).change({{"connected", true}, {"selected", true}});
    EXPECT_EQ(bridge.getRangeMax(), 4095);
    EXPECT_EQ(bridge.lastRangeMax(), 4095);
    host.faults().plant(FaultPlan::Host, "*", {"no answer"});
    EXPECT_EQ(bridge.getRangeMax(), 0);
}

TEST_F(BridgeSlots, UnitsOfLength) {
    const auto units = [&] { return bridge.getCalibrationUnits().replace('"', '\'').toStdString(); };
    const std::string imperial =
        "[{'value':'Inches (in)','view':'<inch>'},{'value':'Feet (ft)','view':'<feet>'},"
        "{'value':'Yard (yd)','view':'<yard>'}]";
    for (const int system : {1, -1}) {
        host.prefs().setValue("customize/unitSystem", system);
        EXPECT_EQ(units(),
                  "[{'value':'Micro (µm)','view':'<µm>'},{'value':'Milimeters (mm)','view':'<mm>'},"
                  "{'value':'Meters (m)','view':'<m>'}]");
    }
    host.prefs().setValue("customize/unitSystem", 0);
    EXPECT_EQ(units(), imperial);
}

TEST_F(BridgeSlots, FlipAndRotation) {
    host.docManager().selectDoc(2);
    const struct {
        bool horizontal;
        bool vertical;
        double turn;
        const char* flip;
        const char* rotate;
    } cases[] = {
        {false, false, 0.0, "0", "0"},
        {true, false, 0.25, "1", "90"},
        {false, true, 0.5, "2", "180"},
        {true, true, 0.75, "3", "270"},
    };
    for (const auto& row : cases) {
        camera(2).change({{"flipHorizontal", row.horizontal}, {"flipVertical", row.vertical}, {"rotation", row.turn}});
        EXPECT_EQ(bridge.getFlip(), row.flip);
        EXPECT_EQ(bridge.getRotate(), row.rotate);
    }
    host.faults().plant(FaultPlan::Host, "*", {"no answer"});
    EXPECT_EQ(bridge.getRotate(), "0");
}

TEST_F(BridgeSlots, ChangesThatMeetAWaitingCallAreRefused) {
    QStringList refused;
    desk.whileStanding = [&] {
        const QRegularExpression refusal(R"re(^warning: "JS_Mediator::(\w+)".*refused)re");
        for (const QMetaMethod& method : slotsOf(JS_Mediator::staticMetaObject)) {
            if (method.name() == "errorHandler") {
                continue;  // takes an exception, which a page has none of
            }
            course.take();
            callSlot(bridge, method);
            const QStringList entries = course.take();
            const QString name = entries.isEmpty() ? QString() : refusal.match(entries[0]).captured(1);
            if (!name.isEmpty()) {
                EXPECT_EQ(entries.size(), 1) << entries.join('\n').toStdString();
                refused << name;
            }
        }
        // What asks goes on, and so does the update.
        EXPECT_NE(bridge.getControlStatus(), "");
        bridge.setPrefInt("column", 5);
        EXPECT_EQ(host.prefs().value("column"), 5);
        EXPECT_EQ(course.take().filter("updateUI 63 true").size(), 1);
    };
    EXPECT_TRUE(bridge.confirm("sure?"));
    refused.removeDuplicates();
    EXPECT_EQ(refused.join(' '),
              "setStyle openPlugin closePlugin openPrefsDialog openPrefsEthernetSettings openExportSupportFileDialog "
              "openAbouZebDialog setSelectDocSub selectAllDocs copySelectAreaToClipboard setDisableAllQuickTool");
}

}  // namespace
