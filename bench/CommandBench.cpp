#include "CommandBench.h"

#include "Camera.h"
#include "ConnectedDocs.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DefaultsLoad.h"
#include "GatheredFailures.h"
#include "Median.h"
#include "MessageDesk.h"
#include "OpenTable.h"
#include "RealClock.h"
#include "RigFile.h"
#include "SimHost.h"
#include "TableState.h"

#include <QElapsedTimer>
#include <QMessageBox>
#include <QTemporaryDir>

#include <functional>
#include <stdexcept>

namespace {

constexpr int Runs = 9;
constexpr int Latency = 50;

/// Agrees to a load of settings.
struct FailingDesk : MessageDesk {
    Answer show(const Message& box) override {
        if (box.kind == Message::Confirm) {
            return {true, false, QMessageBox::Ok};
        }
        throw std::runtime_error(box.text.toStdString());
    }
    void notify(const Message& notice) override {
        if (notice.kind != Message::Info) {
            throw std::runtime_error(notice.text.toStdString());
        }
    }
};

struct Command {
    const char* name;
    std::function<void(SimHost&, const DocKeyList&)> give;
    /// Brings the cameras back to where they were.
    std::function<void(SimHost&, const DocKeyList&)> undo;
};

void lock(SimHost& host, const DocKeyList& keys, bool on) {
    for (DOC_Interface* doc : docsOf(host.docManager(), keys)) {
        doc->lock().setParamLock(on);
    }
}

void load(SimHost& host, const DocKeyList& keys) {
    TableState state;
    GatheredFailures failures;
    DefaultsLoad(host, state, failures).loadOnto(keys);
    failures.rethrow();
}

QString settingsPath() {
    static const QTemporaryDir folder;
    return folder.filePath(QStringLiteral("bench.rigx"));
}

void saveSettings(SimHost& host, const DocKeyList&) {
    host.docManager().saveSettingsFile(settingsPath(), 0);
}

void loadSettings(SimHost& host, const DocKeyList&) {
    host.docManager().loadSettingsFile(settingsPath(), 0, 0);
}

void changeSettings(SimHost& host, const DocKeyList& keys) {
    for (const DOCKEY key : keys) {
        host.cameras().find(key)->change({{QStringLiteral("rate"), 250},
                                          {QStringLiteral("shutter"), 10000},
                                          {QStringLiteral("comment"), QStringLiteral("changed")},
                                          {QStringLiteral("rotation"), 0.25}});
    }
}

const Command Commands[] = {
    {"connect", [](SimHost& host, const DocKeyList& keys) { host.docManager().connectDocs(keys); },
     [](SimHost& host, const DocKeyList& keys) { host.docManager().disconnectDocs(keys); }},
    {"rate",
     [](SimHost& host, const DocKeyList& keys) {
         host.cameraOps().setRecordRate(docsOf(host.docManager(), keys), 500);
     },
     [](SimHost&, const DocKeyList&) {}},
    {"lock", [](SimHost& host, const DocKeyList& keys) { lock(host, keys, true); },
     [](SimHost& host, const DocKeyList& keys) { lock(host, keys, false); }},
    {"arm", [](SimHost& host, const DocKeyList&) { host.recorder().startRecReady(); },
     [](SimHost& host, const DocKeyList&) { host.recorder().cancelRecording(false); }},
    {"load", load, [](SimHost&, const DocKeyList&) {}},
    {"saveSettings", saveSettings, [](SimHost&, const DocKeyList&) {}},
    {"loadSettings", loadSettings, changeSettings},
};

double medianOf(SimHost& host, const DocKeyList& keys, const Command& command) {
    QVector<double> times;
    for (int run = 0; run < Runs; ++run) {
        QElapsedTimer clock;
        clock.start();
        command.give(host, keys);
        times.append(double(clock.nsecsElapsed()) / 1e6);
        command.undo(host, keys);
    }
    return median(times);
}

}  // namespace

QJsonObject CommandBench::run() {
    QJsonObject numbers;
    for (const int count : {1, m_cameras}) {
        const QTemporaryDir folder;
        RealClock clock;
        FailingDesk desk;
        SimHost host(clock, desk, folder.filePath(QStringLiteral("bench.ini")));
        Rig rig = standardRig(count);
        for (RigDevice& device : rig.devices) {
            device.latency = Latency;
        }
        host.setRig(rig);
        const OpenTable plugin(host);
        for (const char* setting : {"triggerEnable", "triggerSwInEnable", "triggerInEnable"}) {
            host.setPrefBool(QLatin1String("wren/settings/") % QLatin1String(setting), true);
        }
        const DocKeyList keys = host.cameras().keys();
        for (const Command& command : Commands) {
            const QString name = QString::fromLatin1(command.name) % (count == 1 ? "One" : "");
            numbers.insert(name, medianOf(host, keys, command));
            host.docManager().connectDocs(keys);
        }
        if (count > 1) {
            QElapsedTimer time;
            time.start();
            for (const DOCKEY key : keys) {
                load(host, {key});
            }
            numbers.insert(QStringLiteral("loadEach"), double(time.elapsed()));
        }
    }
    return numbers;
}
