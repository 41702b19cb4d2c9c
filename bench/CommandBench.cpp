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
#include <optional>
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

const QVector<Command> Commands = {
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
     [](SimHost& host, const DocKeyList&) { host.recorder().cancelRecording(false); }}};

const QVector<Command> Settings = {
    {"load", load, [](SimHost&, const DocKeyList&) {}},
    {"saveSettings", saveSettings, [](SimHost&, const DocKeyList&) {}},
    {"loadSettings", loadSettings, changeSettings},
};

/// The host with cameras that take their time, and the plug-in.
class Stage {
public:
    explicit Stage(int cameras) : m_host(m_clock, m_desk, m_folder.filePath(QStringLiteral("bench.ini"))) {
        Rig rig = standardRig(cameras);
        for (RigDevice& device : rig.devices) {
            device.latency = Latency;
        }
        m_host.setRig(rig);
        m_plugin.emplace(m_host);
        for (const char* setting : {"triggerEnable", "triggerSwInEnable", "triggerInEnable"}) {
            m_host.setPrefBool(QLatin1String("wren/settings/") % QLatin1String(setting), true);
        }
        m_keys = m_host.cameras().keys();
    }

    /// Adds what each takes, by its name with `ending`. The cameras are connected afterwards.
    void measure(QJsonObject& numbers, const QVector<Command>& commands, const QString& ending) {
        for (const Command& command : commands) {
            numbers.insert(QLatin1String(command.name) % ending, medianOf(command));
            connect();
        }
    }

    void connect() { m_host.docManager().connectDocs(m_keys); }

    double loadEach() {
        return timed([this] {
            for (const DOCKEY key : m_keys) {
                load(m_host, {key});
            }
        });
    }

private:
    template <typename Work>
    static double timed(Work&& work) {
        QElapsedTimer clock;
        clock.start();
        work();
        return double(clock.nsecsElapsed()) / 1e6;
    }

    double medianOf(const Command& command) {
        QVector<double> times;
        for (int run = 0; run < Runs; ++run) {
            times.append(timed([&] { command.give(m_host, m_keys); }));
            command.undo(m_host, m_keys);
        }
        return median(times);
    }

    const QTemporaryDir m_folder;
    RealClock m_clock;
    FailingDesk m_desk;
    SimHost m_host;
    std::optional<OpenTable> m_plugin;
    DocKeyList m_keys;
};

}  // namespace

QJsonObject CommandBench::run() {
    QJsonObject numbers;
    Stage(1).measure(numbers, Commands, QStringLiteral("One"));
    Stage(m_cameras).measure(numbers, Commands, {});
    return numbers;
}

QJsonObject CommandBench::settings() {
    QJsonObject numbers;
    Stage one(1);
    one.connect();
    one.measure(numbers, Settings, QStringLiteral("One"));
    Stage all(m_cameras);
    all.connect();
    all.measure(numbers, Settings, {});
    numbers.insert(QStringLiteral("loadEach"), all.loadEach());
    return numbers;
}
