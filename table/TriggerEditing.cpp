#include "TriggerEditing.h"

#include "ChangeableDocs.h"
#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "ZebCameraOps.h"
#include "ZebHost.h"

#include <QStringList>

namespace {

/// Kind of the parameters that the default settings give.
constexpr int DefaultSettingsKind = 2;

QString settingsPref(const char* name) {
    return QStringLiteral("wren/settings/") % QLatin1String(name);
}

/// Modes that record a number of frames at each trigger.
bool isFramed(int mode) {
    switch (mode) {
        case zeb::TriggerRandom:
        case zeb::TriggerRandomReset:
        case zeb::TriggerRandomCenter:
        case zeb::TriggerRandomManual:
        case zeb::TriggerRecOnCmd:
        case zeb::TriggerRandomLoop:
            return true;
        default:
            return false;
    }
}

bool countsTriggers(int mode) {
    return mode == zeb::TriggerRandom || mode == zeb::TriggerRandomReset;
}

}  // namespace

void TriggerEditing::setTriggerMode(const DocKeyList& keys, const QString& val) {
    if (!m_host.isLiveMode() || val.isEmpty()) {
        return;
    }
    const int mode = val.toInt();
    if (m_host.getPrefBool(settingsPref("triggerEnable"))) {
        applyTriggerMode(changeableDocs(m_host, keys, TriggerMode), mode);
    } else {
        setWithHostSettings(changeableDocs(m_host, keys), mode);
    }
}

void TriggerEditing::setWithHostSettings(const DocList& docs, int mode) {
    if (docs.isEmpty()) {
        return;
    }
    const zeb::TriggerSettings settings = m_host.cameraOps().getTriggerSettings();
    send(docs, mode, settings);
    if (countsTriggers(mode)) {
        m_host.cameraOps().setRandomTriggerPhase(docs, settings.randomTimes > 0);
        send(docs, mode, settings);
    }
}

void TriggerEditing::applyTriggerMode(const DocList& docs, int mode) {
    zeb::TriggerSettings settings;
    settings.kind = DefaultSettingsKind;
    settings.manualBeforePercent = m_host.getPrefFloat(settingsPref("triggerManualBeforePer"));
    settings.randomTimes = m_host.getPrefInt(settingsPref("triggerRandomTriggerTimes"));
    settings.randomFrames = m_host.getPrefInt(settingsPref("triggerRandomFrame"));

    const QString reason =
        m_host.translate(QStringLiteral("%1 is invalid.")).arg(m_host.translate(QStringLiteral("Trigger Parameter")));
    DocList valid;
    QStringList invalid;
    for (DOC_Interface* doc : docs) {
        if (fits(*doc, mode, settings)) {
            valid.append(doc);
        } else {
            invalid.append(doc->control().getCameraName(1) % QStringLiteral("・・") % reason);
        }
    }
    if (!valid.isEmpty()) {
        send(valid, mode, settings);
        if (countsTriggers(mode)) {
            m_host.cameraOps().setRandomTriggerPhase(valid, settings.randomTimes >= 1);
            send(valid, mode, settings);
        }
    }
    if (!invalid.isEmpty()) {
        m_host.alert(invalid.join(QLatin1Char('\n')), nullptr);
    }
}

void TriggerEditing::send(const DocList& docs, int mode, const zeb::TriggerSettings& settings) {
    m_host.cameraOps().setTriggerMode(docs, settings.kind, mode, settings.reserved1, settings.reserved2,
                                      settings.manualBeforePercent, settings.randomFrames, settings.randomTimes);
}

/// A camera that does not offer the mode, or records on command, is left to say so itself.
bool TriggerEditing::fits(DOC_Interface& doc, int mode, const zeb::TriggerSettings& settings) const {
    if (!isFramed(mode)) {
        return true;
    }
    const qint64 frames = qint64(settings.randomTimes == 0 ? 1 : settings.randomTimes) * settings.randomFrames;
    const bool tooMany = frames > qint64(doc.frames().getFrameCount(0, 0));
    return !tooMany || mode == zeb::TriggerRecOnCmd || !doc.control().getTriggerModeList().contains(mode);
}
