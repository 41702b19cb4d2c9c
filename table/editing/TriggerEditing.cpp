#include "TriggerEditing.h"

#include "CameraAction.h"
#include "ChangeableDocs.h"
#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "NamedFailure.h"
#include "SettingsKeys.h"
#include "TextKey.h"
#include "UndoStep.h"
#include "ZebCameraOps.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebLeftOut.h"

#include <QStringList>

namespace {

/// Kind of the parameters that the default settings give.
constexpr int DefaultSettingsKind = 2;

/// Modes that record a number of frames at each trigger into what memory there is. Recording on command takes any.
bool isBoundedByMemory(int mode) {
    switch (mode) {
        case zeb::TriggerRandom:
        case zeb::TriggerRandomReset:
        case zeb::TriggerRandomCenter:
        case zeb::TriggerRandomManual:
        case zeb::TriggerRandomLoop:
            return true;
        default:
            return false;
    }
}

}  // namespace

void TriggerEditing::setTriggerMode(const DocKeyList& keys, const QString& val) {
    if (!m_host.isLiveMode() || val.isEmpty()) {
        return;
    }
    const int mode = val.toInt();
    GatheredFailures failures;
    if (m_host.getPrefBool(settingskeys::TriggerEnable)) {
        const DocList docs = changeableDocs(m_host, keys, TriggerMode, failures);
        failures.attempt([&] { applyTriggerMode(docs, mode, failures); });
    } else {
        const DocList docs = changeableDocs(m_host, keys, failures);
        failures.attempt([&] { setWithHostSettings(docs, mode); });
    }
    failures.rethrow();
}

void TriggerEditing::setWithHostSettings(const DocList& docs, int mode) {
    if (!docs.isEmpty()) {
        send(docs, mode, m_host.cameraOps().getTriggerSettings()).rethrow();
    }
}

void TriggerEditing::applyTriggerMode(const DocList& docs, int mode, GatheredFailures& failures) {
    const zeb::TriggerSettings settings = defaultParameters();
    QStringList misfits;
    DocList fitting;
    for (DOC_Interface* doc : docs) {
        attemptOn(*doc, failures, [&] {
            if (fits(*doc, mode, settings)) {
                fitting << doc;
            } else {
                misfits << misfitText(doc->control().getCameraName(1));
            }
        });
    }
    if (!fitting.isEmpty()) {
        failures.note(send(fitting, mode, settings).text());
    }
    // From here on documents may be others: a box stands.
    if (!misfits.isEmpty()) {
        m_isSent = true;  // the result names who was left out
        m_host.alert(misfits.join(QLatin1Char('\n')), nullptr);
    }
}

zeb::TriggerSettings TriggerEditing::defaultParameters() const {
    zeb::TriggerSettings settings;
    settings.kind = DefaultSettingsKind;
    settings.manualBeforePercent = m_host.getPrefFloat(settingskeys::TriggerManualBeforePer);
    settings.randomTimes = m_host.getPrefInt(settingskeys::TriggerRandomTriggerTimes);
    settings.randomFrames = m_host.getPrefInt(settingskeys::TriggerRandomFrame);
    return settings;
}

QString TriggerEditing::misfitText(const QString& camera) const {
    const QString parameter = m_host.translate(TextKey("Trigger Parameter"));
    return camera % QStringLiteral("・・") % m_host.translate(TextKey("%1 is invalid.")).arg(parameter);
}

std::vector<TriggerEditing::Command> TriggerEditing::commands(int mode, const zeb::TriggerSettings& settings) const {
    ZebCameraOps& cameras = m_host.cameraOps();
    const Command setMode = [=, &cameras](const DocList& docs) {
        cameras.setTriggerMode(docs, settings.kind, mode, settings.reserved1, settings.reserved2,
                               settings.manualBeforePercent, settings.randomFrames, settings.randomTimes);
    };
    if (mode != zeb::TriggerRandom && mode != zeb::TriggerRandomReset) {
        return {setMode};
    }
    // The mode takes its numbers anew once the camera knows how it counts.
    const Command setPhase = [=, &cameras](const DocList& docs) {
        cameras.setRandomTriggerPhase(docs, settings.randomTimes > 0);
    };
    return {setMode, setPhase, setMode};
}

/// Each command goes to all cameras, whatever one of them says to an earlier one; answers what they have refused.
GatheredFailures TriggerEditing::send(const DocList& docs, int mode, const zeb::TriggerSettings& settings) {
    m_isSent = true;
    DocKeyList keys = keysOf(docs);
    const UndoStep step(m_host, cameraaction::Trigger, *docs.first(), QString::number(mode));
    GatheredFailures refusals;
    for (const Command& command : commands(mode, settings)) {
        refusals.attempt([&] {
            try {
                // Documents are others after a command.
                command(docsOf(m_host.docManager(), keys));
            } catch (const ZebLeftOut& cancelled) {
                for (const DOCKEY key : cancelled.keys()) {
                    keys.removeAll(key);
                }
                throw;
            }
        });
    }
    return refusals;
}

/// A camera that does not offer the mode is left to say so itself.
bool TriggerEditing::fits(DOC_Interface& doc, int mode, const zeb::TriggerSettings& settings) {
    if (!isBoundedByMemory(mode)) {
        return true;
    }
    const qint64 frames = qint64(settings.randomTimes == 0 ? 1 : settings.randomTimes) * settings.randomFrames;
    return frames <= qint64(doc.frames().getFrameCount(0, 0)) || !doc.control().getTriggerModeList().contains(mode);
}
