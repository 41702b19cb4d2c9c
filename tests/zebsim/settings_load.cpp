#include "DOC_Control.h"
#include "Files.h"
#include "OfferedSetting.h"
#include "support/TestHost.h"

#include <QJsonDocument>
#include <QMessageBox>
#include <QRegularExpression>

#include <gtest/gtest.h>

#define LOADS SOURCE_FOLDER "/tests/zebsim/loads/"

namespace {

/// Another value of each setting that the camera offers.
void changeAll(Camera& camera) {
    const CameraModel& model = camera.model();
    const QSize last = model.resolutions.last();
    QVariantMap others = QJsonDocument::fromJson(contentOf(LOADS "others.json")).toVariant().toMap();
    others.insert({{"resolution", QVariantList{last.width(), last.height()}},
                   {"rate", model.rates.first()},
                   {"shutter", model.shutters.last()},
                   {"triggerMode", model.triggerModes.last()},
                   {"name", QString(camera.name() + " other")}});
    for (const QString& name : CameraState::settings()) {
        camera.change({{name, offeredSetting(name, others[name], camera.state(), model)}});
    }
}

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
    QString path = test.folder.filePath("x.rigx");
    QList<QVariantMap> saved;
};

TEST_F(SettingsLoad, BringsBackEachSettingOfEachCamera) {
    EXPECT_EQ(load(), QStringList{"All cameras are as in \"x.rigx\" already."});
    for (Camera* camera : test.host.cameras().all()) {
        changeAll(*camera);
    }
    const auto other = settings();
    for (const QString& name : CameraState::settings()) {
        EXPECT_TRUE(other[0][name] != saved[0][name] || other[6][name] != saved[6][name]) << name.toStdString();
    }
    const QString mine = path;
    path = test.folder.filePath("other.rigx");
    save();
    for (const auto& [file, held] : {std::pair(mine, saved), std::pair(path, other)}) {
        path = file;
        EXPECT_TRUE(load().last().endsWith("are loaded."));
        EXPECT_EQ(settings(), held);
    }
}

/// Settings of the first two cameras were changed, and something is the matter with the first.
TEST_F(SettingsLoad, TellsOfEachCameraWhatItsCauseIsAndDoesTheOthers) {
    for (const QVariant& each : QJsonDocument::fromJson(contentOf(LOADS "surprises.json")).toVariant().toList()) {
        const QVariantMap row = each.toMap();
        SCOPED_TRACE(row["name"].toString().toStdString());
        const QStringList surprises = row["surprises"].toStringList();
        for (const DOCKEY key : {1, 2}) {
            test.camera(key).change({{"rate", 500},
                                     {"resolution", QVariantList{512, 256}},
                                     {"name", QString(saved[int(key) - 1]["name"].toString() + " 2")},
                                     {"rotation", 0.25}});
        }
        const auto cause = [&] {
            test.camera(1).change(row["state"].toMap());
            const QVariantMap faults = row["faults"].toMap();
            for (auto fault = faults.begin(); fault != faults.end(); ++fault) {
                const QVariantMap is = fault->toMap();
                test.host.faults().plant(1, fault.key(),
                                         {is["throws"].toString(), is["delay"].toInt(), is["gone"].toBool()});
            }
        };
        if (row["when"] == "before") {
            cause();
        } else {
            test.desk.whileStanding = cause;
        }
        const QStringList lines = load();
        test.desk.whileStanding = nullptr;
        EXPECT_EQ(lines.mid(1, row["odd"].toList().size()), row["odd"].toStringList());
        EXPECT_EQ(lines.filter(QRegularExpression("^Not all")).isEmpty(), surprises.isEmpty());
        EXPECT_EQ(lines.mid(lines.size() - surprises.size()), surprises);
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
    EXPECT_TRUE(load().first().startsWith("Loading \"x.rigx\" changes nothing."));
}

/// The file knows the rate of one, and the shutter of the other, in whose memory there are fewer frames.
TEST_F(SettingsLoad, TellsOfTheHeadsThatAnotherChanges) {
    test.camera(4).change({{"partitions", 3}});
    write(path, R"({"format": 1, "cameras": [{"address": "192.168.0.13", "heads": [
        {"head": 1, "settings": {"rate": 2000, "shutter": 2000, "triggerFrame": 7}}, {"head": 2, "settings": {"shutter": 500}}]}]})");
    const QStringList lines = load();
    EXPECT_TRUE(
        lines.contains("Nozzle right: Shutter speed 1/500 s → 1/2000 s (no exposure lasts longer than a frame)"));
    EXPECT_EQ(lines.last(), "The settings of \"x.rigx\" are loaded.");
    EXPECT_EQ(settings()[3]["shutter"], 2000);
    EXPECT_EQ(settings()[2]["triggerFrame"], 7);
    EXPECT_EQ(settings()[3]["triggerFrame"], 7);
}

TEST_F(SettingsLoad, KeepsTheExposureOfLowLightAndTheMode) {
    test.camera(1).change({{"lowLight", true}, {"shutter", 50}});
    write(path, R"({"format": 1, "cameras": [{"address": "192.168.0.11", "heads": [
        {"head": 1, "settings": {"rate": 2000}}]}]})");
    load();
    EXPECT_EQ(settings()[0]["shutter"], 50) << "low light was left for the rate";
    test.camera(1).change({{"rate", 500}});
    test.desk.whileStanding = [this] { test.host.appStatus().enterMode(zeb::MemoryMode); };
    EXPECT_EQ(load().last(), "The mode has changed. No setting was loaded.");
    EXPECT_EQ(settings()[0]["rate"], 500);
}

TEST_F(SettingsLoad, BearsAFileWithTextsThatAreTooLong) {
    for (const char* part : {": ", "x"}) {
        write(path,
              QByteArray(R"({"format": 1, "cameras": [], ")") + QByteArray(part).repeated(1'000'000) + R"(": 1})");
        const std::string told = thrownBy([this] { load(); });
        EXPECT_LT(told.size(), 2000U);
        test.host.messages().tellFailure(std::runtime_error(told));
        EXPECT_EQ(test.desk.take().size(), 1);
    }
}

}  // namespace
