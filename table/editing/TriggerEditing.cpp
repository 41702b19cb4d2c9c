#include "TriggerEditing.h"

#include "ChangeableDocs.h"
#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "NamedFailure.h"
#include "SettingsKeys.h"
#include "TextKey.h"
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
        failures.attempt([&] {
            const Outcome outcome = applyTriggerMode(docs, mode);
            // From here on documents may be others: a box stands.
            if (!outcome.invalid.isEmpty()) {
                m_host.alert(outcome.invalid.join(QLatin1Char('\n')), nullptr);
            }
            outcome.refusals.rethrow();
        });
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

TriggerEditing::Outcome TriggerEditing::applyTriggerMode(const DocList& docs, int mode) {
    zeb::TriggerSettings settings;
    settings.kind = DefaultSettingsKind;
    settings.manualBeforePercent = m_host.getPrefFloat(settingskeys::TriggerManualBeforePer);
    settings.randomTimes = m_host.getPrefInt(settingskeys::TriggerRandomTriggerTimes);
    settings.randomFrames = m_host.getPrefInt(settingskeys::TriggerRandomFrame);

    const QString reason =
        m_host.translate(TextKey("%1 is invalid.")).arg(m_host.translate(TextKey("Trigger Parameter")));
    Outcome outcome;
    DocList valid;
    for (DOC_Interface* doc : docs) {
        attemptOn(*doc, outcome.refusals, [&] {
            if (fits(*doc, mode, settings)) {
                valid.append(doc);
            } else {
                outcome.invalid.append(doc->control().getCameraName(1) % QStringLiteral("・・") % reason);
            }
        });
    }
    if (!valid.isEmpty()) {
        outcome.refusals.note(send(valid, mode, settings).text());
    }
    return outcome;
}

/// Each command goes to all cameras, whatever one of them says to an earlier one; answers what they have refused.
GatheredFailures TriggerEditing::send(const DocList& docs, int mode, const zeb::TriggerSettings& settings) {
    ZebCameraOps& cameras = m_host.cameraOps();
    DocKeyList keys = keysOf(docs);
    GatheredFailures refusals;
    const auto attempt = [&](auto&& command) {
        refusals.attempt([&] {
            try {
                command();
            } catch (const ZebLeftOut& cancelled) {
                for (const DOCKEY key : cancelled.keys()) {
                    keys.removeAll(key);
                }
                throw;
            }
        });
    };
    const auto setMode = [&](const DocList& there) {
        cameras.setTriggerMode(there, settings.kind, mode, settings.reserved1, settings.reserved2,
                               settings.manualBeforePercent, settings.randomFrames, settings.randomTimes);
    };
    attempt([&] { setMode(docs); });
    if (mode == zeb::TriggerRandom || mode == zeb::TriggerRandomReset) {
        // The mode takes its numbers anew once the camera knows how it counts. Documents are others after a command.
        ZebDocManager& documents = m_host.docManager();
        attempt([&] { cameras.setRandomTriggerPhase(docsOf(documents, keys), settings.randomTimes > 0); });
        attempt([&] { setMode(docsOf(documents, keys)); });
    }
    return refusals;
}

/// A camera that does not offer the mode is left to say so itself.
bool TriggerEditing::fits(DOC_Interface& doc, int mode, const zeb::TriggerSettings& settings) const {
    if (!isBoundedByMemory(mode)) {
        return true;
    }
    const qint64 frames = qint64(settings.randomTimes == 0 ? 1 : settings.randomTimes) * settings.randomFrames;
    return frames <= qint64(doc.frames().getFrameCount(0, 0)) || !doc.control().getTriggerModeList().contains(mode);
}
