#include "DOC_Control.h"
#include "Files.h"
#include "support/TestHost.h"

#include <QMessageBox>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

/// Eight cameras of all models, connected, with a file of their settings; keys: 1 Gate, 2 Ramp, 3 and 4 the heads of
/// one device, 5 Roof, 6 Track, 7 Impact, 8 Stand-in.
class SettingsLoad : public testing::Test {
protected:
    SettingsLoad() {
        begin(readRig("eight-mixed"));
        saved = settings();
        save();
        test.desk.take();
    }

    void begin(Rig rig) {
        for (RigDevice& device : rig.devices) {
            for (CameraState& head : device.heads) {
                head.connected = true;
                head.locked = false;
                head.recordState = zeb::RecordLive;
            }
        }
        test.host.setRig(rig);
        QCoreApplication::processEvents();
    }
    void save() { test.host.docManager().saveSettingsFile(path, 0); }
    /// Answers with "Load" unless told otherwise; the boxes and notices that were shown, in lines.
    QStringList load(int button = QMessageBox::Ok) {
        test.desk.answers = {{button == QMessageBox::Ok, false, button}};
        test.host.docManager().loadSettingsFile(path, 0, 0);
        test.desk.answers.clear();
        QStringList lines;
        for (const Message& message : test.desk.shown) {
            lines += QStringList(message.text) + message.list;
        }
        test.desk.shown.clear();
        return lines;
    }
    QList<QVariantMap> settings() {
        QList<QVariantMap> all;
        for (const Camera* camera : test.host.cameras().known()) {
            all << camera->state().toPlain(CameraState::settings());
        }
        return all;
    }

    TestHost test;
    const QString path = test.folder.filePath("x.rigx");
    QList<QVariantMap> saved;
};

TEST_F(SettingsLoad, BringsBackEachSettingOfEachCamera) {
    EXPECT_EQ(load(), (QStringList{"All cameras are as in \"x.rigx\" already."}));
    for (Camera* camera : test.host.cameras().all()) {
        const CameraModel& model = camera->model();
        const CameraState state = camera->state();
        QVariantMap ports;
        for (const int port : state.ports.keys()) {
            ports[QString::number(port)] = state.ports[port] == 1 ? 2 : 1;
        }
        const auto has = [&](int function) { return model.functions.contains(function); };
        const auto other = [](const auto& list, const auto& value) {
            return list.first() == value ? list.last() : list.first();
        };
        const QSize resolution = other(model.resolutions, state.resolution);
        camera->change({{"resolution", QVariantList{resolution.width(), resolution.height()}},
                        {"rate", model.rates[1]},
                        {"shutter", model.shutters.last()},
                        {"triggerMode", other(model.triggerModes, state.triggerMode)},
                        {"triggerFrame", state.triggerFrame + 7},
                        {"randomFrames", 11},
                        {"randomTimes", 3},
                        {"randomCounted", true},
                        {"recordArea", QVariantList{-5, 90}},
                        {"reduce", has(zeb::FunctionReduceMode) != state.reduce},
                        {"lowLight", has(zeb::FunctionLowLight) != state.lowLight},
                        {"lowLightType", has(zeb::FunctionLowLight) ? zeb::LowLightTypeFine : state.lowLightType},
                        {"resolutionLock", !state.resolutionLock},
                        {"shutterSpeedLock", !state.shutterSpeedLock},
                        {"ports", ports},
                        {"dualSlope", 2},
                        {"autoExposure", !state.autoExposure},
                        {"irig", has(zeb::FunctionIrig) != state.irig},
                        {"irigStampAtEnd", has(zeb::FunctionIrigTimeStampPosition) != state.irigStampAtEnd},
                        {"variable", has(zeb::FunctionVariable) ? 1 : 0},
                        {"variableChannels", has(zeb::FunctionVariable) ? QStringList{"one"} : QStringList()},
                        {"irigSync", has(zeb::FunctionIrigSync) != state.irigSync},
                        {"binningPower", model.capabilities.contains("binning") ? 1 : 0},
                        {"name", QString(state.name + " other")},
                        {"comment", QString::fromUtf8("カメラ <b>{Separator}")},
                        {"alias", "an alias"},
                        {"customInfo", QVariantList{QVariantMap{{"name", "n"}, {"value", "v"}}}},
                        {"partitionNames", QStringList{"first"}},
                        {"effectivePlugins", QStringList(state.plugins.mid(2, 1))},
                        {"pluginValues", QVariantMap{{"filter", QVariantMap{}}}},
                        {"lutCurve", !state.lutCurve},
                        {"frameSkipEnabled", !state.frameSkipEnabled},
                        {"frameSkipMode", 1},
                        {"frameSkip", 9},
                        {"scale", 1.5},
                        {"rotation", 0.1},
                        {"flipHorizontal", !state.flipHorizontal},
                        {"flipVertical", !state.flipVertical},
                        {"zoom", 1.0 / 3}});
    }
    const auto changed = settings();
    QFile::rename(path, path + ".old");
    save();
    QFile::rename(path, path + ".other");
    QFile::copy(path + ".old", path);
    for (const auto& name : CameraState::settings()) {
        const auto isChanged = [&](int camera) { return changed[camera][name] != saved[camera][name]; };
        EXPECT_TRUE(isChanged(0) || isChanged(6)) << name.toStdString();
    }
    const QStringList first = load();
    EXPECT_EQ(first.last(), "The settings of \"x.rigx\" are loaded.") << first.join('\n').toStdString();
    EXPECT_EQ(settings(), saved);
    EXPECT_EQ(load(), (QStringList{"All cameras are as in \"x.rigx\" already."}));
    QFile::remove(path);
    QFile::copy(path + ".other", path);
    const QStringList back = load();
    EXPECT_EQ(back.last(), "The settings of \"x.rigx\" are loaded.") << back.join('\n').toStdString();
    EXPECT_EQ(settings(), changed);
}

/// Settings of the first two cameras were changed, and something is the matter with the first.
TEST_F(SettingsLoad, TellsOfEachCameraWhatItsCauseIsAndDoesTheOthers) {
    const auto fault = [this](const char* operation, const Fault& planted) {
        return [this, operation, planted] { test.host.faults().plant(1, operation, planted); };
    };
    const auto change = [this](const QVariantMap& members) {
        return [this, members] { test.camera(1).change(members); };
    };
    const std::function<void()> nothing = [] {};
    const QString notAll = "Not all settings of \"x.rigx\" were loaded.";
    const struct {
        const char* name;
        std::function<void()> before;
        /// While the preview stands.
        std::function<void()> meanwhile;
        QStringList odd;
        QStringList surprises;
    } rows[] = {
        {"nothing", nothing, nothing, {}, {}},
        {"a rate that is refused",
         fault("setRecordRate", {"no answer"}),
         nothing,
         {},
         {"Gate 2: Frame rate: no answer"}},
        {"one that refuses all",
         fault("*", {"dead"}),
         nothing,
         {},
         {"Gate 2: Resolution, Frame rate, Camera name, Rotation: dead",
          "Gate 2: its settings could not be read back: dead"}},
        {"one that can't be read back",
         fault("readSettings", {"dead"}),
         nothing,
         {},
         {"Gate 2: its settings could not be read back: dead"}},
        {"one that vanishes on the way",
         fault("setRecordRate", {{}, 0, true}),
         nothing,
         {},
         {"Gate 2: the camera is gone"}},
        {"a slow one", fault("*", {{}, 9000}), nothing, {}, {}},
        {"locked", change({{"locked", true}}), nothing, {"Gate 2: it is locked, and stays as it is"}, {}},
        {"locked meanwhile", nothing, change({{"locked", true}}), {}, {"Gate 2: it is locked, and stays as it is"}},
        {"armed meanwhile", nothing, change({{"recordState", 2}}), {}, {"Gate 2: it is armed, and stays as it is"}},
        {"off meanwhile",
         nothing,
         change({{"connected", false}}),
         {},
         {"Gate 2: it is not connected, and stays as it is"}},
        {"gone meanwhile", nothing, fault("*", {{}, 0, true}), {}, {"Gate 2: the camera is gone"}},
        {"gone before", fault("*", {{}, 0, true}), nothing, {"Gate 2: the camera is gone"}, {}},
        {"in low light", change({{"lowLight", true}, {"shutter", 50}}), nothing, {}, {}},
        {"in low light that does not end",
         [&] {
             test.camera(1).change({{"lowLight", true}});
             test.host.faults().plant(1, "setLowLight", {"stuck"});
         },
         nothing,
         {},
         {"Gate 2: Lowlight: stuck", "Gate 2: Resolution, Frame rate: this can't be changed in low light mode"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        for (const DOCKEY key : {1, 2}) {
            const QString name = saved[int(key) - 1]["name"].toString();
            test.camera(key).change({{"rate", 500},
                                     {"resolution", QVariantList{512, 256}},
                                     {"name", QString(name + " 2")},
                                     {"rotation", 0.25}});
        }
        row.before();
        test.desk.whileStanding = row.meanwhile;
        const QStringList lines = load();
        test.desk.whileStanding = nullptr;
        EXPECT_EQ(lines.mid(1, row.odd.size()), row.odd);
        EXPECT_EQ(lines.filter(QRegularExpression("^Not all")).size(), row.surprises.isEmpty() ? 0 : 1);
        EXPECT_EQ(row.surprises, lines.mid(lines.size() - row.surprises.size()));
        EXPECT_EQ(settings().mid(1), saved.mid(1)) << "the others";

        test.host.faults().clear();
        test.camera(1).change({{"locked", false}, {"recordState", 0}, {"connected", true}});
        load();
        EXPECT_EQ(settings(), saved) << "without the cause";
    }
}

TEST_F(SettingsLoad, ChangesNothingUnlessItIsAgreedTo) {
    test.camera(1).change({{"rate", 500}});
    const auto before = settings();
    EXPECT_EQ(load(QMessageBox::Cancel).size(), 2);
    write(path, contentOf(path).replace("\"rate\": 1000,", "\"rate\": true,"));
    const std::string told = thrownBy([this] { load(); });
    EXPECT_NE(told.find("x.rigx: line 11: cameras[0].heads[0].settings.rate: "), std::string::npos) << told;
    EXPECT_EQ(test.desk.take(), QStringList());
    EXPECT_EQ(settings(), before);
}

TEST_F(SettingsLoad, OfFewerCamerasOrOtherOnes) {
    Rig rig = readRig("eight-mixed");
    rig.devices = rig.devices.mid(0, 5);
    rig.devices[1].heads[0].rate = 500;
    rig.devices[2].model = rig.devices[0].model;
    rig.devices[2].heads = {rig.devices[0].heads[0]};
    begin(rig);
    const QStringList first = load();
    EXPECT_EQ(first.mid(1, 2),
              (QStringList{"192.168.0.13-2, 192.168.0.16, 192.168.0.17: there is no such camera",
                           "Gate (192.168.0.13): Resolution stays 1024 x 1024 (1280 x 800 is not offered)"}));
    EXPECT_EQ(settings()[1], saved[1]);
    EXPECT_EQ(first.last(), "The settings of \"x.rigx\" are loaded.");
    EXPECT_EQ(load().first(), "No setting of \"x.rigx\" can be loaded.");
}

/// The file knows the rate of one, and the shutter of the other.
TEST_F(SettingsLoad, ReadsBackTheHeadsThatAnotherHasChanged) {
    write(path, R"({"format": 1, "cameras": [{"address": "192.168.0.13", "heads": [
        {"head": 1, "settings": {"rate": 2000, "shutter": 2000}}, {"head": 2, "settings": {"shutter": 500}}]}]})");
    const QStringList lines = load();
    EXPECT_EQ(lines.last(), "Nozzle right: Shutter speed: 1/500 s asked, 1/2000 s taken");
}

}  // namespace
