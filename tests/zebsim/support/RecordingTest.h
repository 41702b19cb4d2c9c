#pragma once

#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "Recording.h"
#include "support/StubPlugin.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

/// "first..last trigger t", or "nothing".
inline std::string told(const std::optional<Recording>& recording) {
    if (!recording) {
        return "nothing";
    }
    return QStringLiteral("%1..%2 trigger %3")
        .arg(recording->first)
        .arg(recording->last)
        .arg(recording->trigger)
        .toStdString();
}

/// Keys: 1 and 2 standard cameras with 8192 frames at 1000 a second, 3 a fast one that waits half a second for CTS and
/// has the trigger a quarter into 131072 frames at 10000 a second.
class RecordingTest : public testing::Test {
protected:
    RecordingTest() {
        begin();
        host.appStatus().registerPlugin(&plugin);
        // Most tests record again and again.
        host.prefs().setValue("alert/unsavedrecording", false);
        QObject::connect(&plugin, &StubPlugin::signalEndRecording, &plugin, [this] { ++ends; });
    }

    /// With new cameras, all of them connected.
    void begin() {
        host.faults().clear();
        host.setRig(rig());
        for (Camera* camera : host.cameras().all()) {
            camera->set(&CameraState::connected, true);
        }
        host.appStatus().enterMode(zeb::LiveMode);
        QCoreApplication::processEvents();
        ends = 0;
    }
    static Rig rig() {
        Rig rig = standardRig(2);
        Rig fast = readRig(QStringLiteral("eight-mixed"));
        rig.devices.append(fast.devices.at(5));
        rig.devices.last().heads.first().triggerFrame = 98304;
        for (RigDevice& device : rig.devices) {
            device.latency = 0;
            device.heads.first().recorded = false;
        }
        return rig;
    }

    void pass(qint64 ms) {
        test.clock.advance(ms);
        host.recorder().proceed();
        QCoreApplication::processEvents();
        test.clock.join();
    }
    /// The states of the cameras, and that of the whole.
    std::string states() {
        const int whole = host.recorder().getRecordingState();
        QString list;
        for (const Camera* camera : host.cameras().all()) {
            list += QString::number(camera->get(&CameraState::recordState)) + QLatin1Char(' ');
        }
        return QStringLiteral("%1- %2").arg(list).arg(whole).toStdString();
    }
    std::string recorded(DOCKEY key) { return told(test.camera(key).recording()); }
    void plant(DOCKEY key, const char* operation, const Fault& fault) {
        host.faults().plant(key, QString::fromLatin1(operation), fault);
    }
    void armAll() {
        host.recorder().startRecReady();
        pass(600);
    }
    void triggerAll() {
        armAll();
        host.recorder().triggerRecording();
    }
    std::string messages() {
        QCoreApplication::processEvents();
        const QStringList texts = test.desk.texts();
        test.desk.shown.clear();
        return texts.join(QStringLiteral(" | ")).toStdString();
    }

    TestHost test;
    SimHost& host = test.host;
    StubPlugin plugin;
    int ends = 0;
};
