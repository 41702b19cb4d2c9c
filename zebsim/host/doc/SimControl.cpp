#include "SimControl.h"

#include "CameraError.h"
#include "Notices.h"
#include "ShutterText.h"
#include "SimAppStatus.h"
#include "SimRecorder.h"
#include "SyncSignal.h"
#include "TextKey.h"
#include "Translator.h"

QString SimControl::getSyncStatusText() const {
    return m_host.sync.statusOf(askConnected(OPERATION("getSyncStatusText")));
}

int SimControl::getShutterSpeed() const {
    const int fraction = askConnected(OPERATION("getShutterSpeed"), &CameraState::shutter);
    return ShutterText::valueIn(ShutterText(m_host.prefs).list(), fraction);
}

QList<int> SimControl::getShutterSpeedList(int list) const {
    QList<int> speeds;
    for (const int fraction : askConnected(OPERATION("getShutterSpeedList"), &CameraModel::shutters)) {
        speeds.append(ShutterText::valueIn(list, fraction));
    }
    return speeds;
}

QStringList SimControl::getShutterSpeedEntries() const {
    const ShutterText text(m_host.prefs);
    QStringList entries;
    for (const int fraction : askConnected(OPERATION("getShutterSpeedEntries"), &CameraModel::shutters)) {
        entries.append(text.entry(fraction));
    }
    return entries;
}

zeb::ManualTriggerParameters SimControl::getManualTriggerParameters() const {
    zeb::ManualTriggerParameters parameters;
    parameters.triggerFrame = askConnected(OPERATION("getManualTriggerParameters"), &CameraState::triggerFrame);
    return parameters;
}

zeb::VariableChannelInfo SimControl::getVariableChannelInfo(int channel) const {
    const QString text =
        askConnected(OPERATION("getVariableChannelInfo"), &CameraState::variableChannels).value(channel - 1);
    return {text, !text.isEmpty()};
}

unsigned int SimControl::getRecordedRateOfPartition(PARTITIONNUMBER partition) const {
    const auto recording = askConnected(OPERATION("getRecordedRateOfPartition")).recordingOf(partition);
    return recording ? recording->rate : 0;
}

unsigned int SimControl::getRecordedRate() const {
    const auto recording = askConnected(OPERATION("getRecordedRate")).recording();
    return recording ? recording->rate : 0;
}

int SimControl::getTriggerOffsetBase() const {
    const auto recording = askConnected(OPERATION("getTriggerOffsetBase")).recording();
    return recording ? recording->trigger : 0;
}

bool SimControl::hasRecordedData() const {
    const Camera& camera = askConnected(OPERATION("hasRecordedData"));
    return camera.get(&CameraState::recorded) && !camera.isUnderWay() && !m_host.recorder.isRunning();
}

void SimControl::eraseRecordedData(int mode) {
    Camera& camera = note("DOC_Control::eraseRecordedData", {mode});
    if (m_host.recorder.isRunning()) {
        throw CameraError(camera.name(), QStringLiteral("nothing can be erased while a recording is under way"));
    }
    const auto recording = camera.recording();
    camera.eraseRecordedData();
    if (recording && !camera.recording()) {
        const QString label = m_host.cameras.labelOf(camera);
        const QString frames = QString::number(recording->frameCount());
        const QString whole = m_host.translator.translate(TextKey("%1: %2 frames were erased."));
        const QString part = m_host.translator.translate(TextKey("%1: %2 frames in partition %3 were erased."));
        m_host.notices.add(Message::Info, camera.get(&CameraState::partitions) > 1
                                              ? part.arg(label, frames, QString::number(recording->partition))
                                              : whole.arg(label, frames));
    }
}

bool SimControl::showsRecorded() const {
    return m_camera.isFile() || m_host.appStatus.mode() == zeb::MemoryMode;
}

QList<QVariantMap> SimControl::getCustomInfoList() const {
    return itemsOf(ask(OPERATION("getCustomInfoList")).customInfo(showsRecorded()));
}

QList<QVariantMap> SimControl::itemsOf(const CustomInfo& info) {
    const auto flag = [](bool on) { return on ? QStringLiteral("on") : QString(); };
    QList<QVariantMap> list;
    for (const CustomItem& item : info.items()) {
        list.append({{QStringLiteral("name"), item.name},
                     {QStringLiteral("value"), item.value},
                     {QStringLiteral("unit"), item.unit},
                     {QStringLiteral("display"), flag(item.display)},
                     {QStringLiteral("usefilename"), flag(item.usefilename)}});
    }
    return list;
}

void SimControl::clearCustomInfo() {
    change(OPERATION("DOC_Control::clearCustomInfo"), {}).editCustomInfo(showsRecorded(), [](CustomInfo& info) {
        info = {};
        return QString();
    });
}

void SimControl::addCustomInfo(const QString& name, const QString& value, const QString& unit, bool display,
                               bool usefilename) {
    const CustomItem item{name, value, unit, display, usefilename};
    change(OPERATION("DOC_Control::addCustomInfo"), {name, value, unit, display, usefilename})
        .editCustomInfo(showsRecorded(), [&item](CustomInfo& info) { return info.put(item); });
}

void SimControl::updateCustomInfo(const QString& name, const QString& value, const QString& unit, bool display,
                                  bool usefilename) {
    const CustomItem item{name, value, unit, display, usefilename};
    change(OPERATION("DOC_Control::updateCustomInfo"), {name, value, unit, display, usefilename})
        .editCustomInfo(showsRecorded(), [&item](CustomInfo& info) {
            info.update(item);
            return QString();
        });
}

void SimControl::removeCustomInfo(const QString& name) {
    change(OPERATION("DOC_Control::removeCustomInfo"), {name})
        .editCustomInfo(showsRecorded(), [&name](CustomInfo& info) {
            info.remove(name);
            return QString();
        });
}

void SimControl::renameCustomInfo(const QString& name, const QString& newName) {
    change(OPERATION("DOC_Control::renameCustomInfo"), {name, newName})
        .editCustomInfo(showsRecorded(), [&](CustomInfo& info) { return info.rename(name, newName); });
}
