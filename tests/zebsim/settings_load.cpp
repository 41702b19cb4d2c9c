#include "DOC_Control.h"
#include "Files.h"
#include "support/TestHost.h"

#include <QMessageBox>

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

}  // namespace
