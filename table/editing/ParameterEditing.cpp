#include "ParameterEditing.h"

#include "AllowedValues.h"
#include "CameraAction.h"
#include "ChangeableDocs.h"
#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Lock.h"
#include "DocumentGuard.h"
#include "NamedFailure.h"
#include "TextKey.h"
#include "UndoStep.h"
#include "ZebCameraOps.h"

#include <limits>

namespace {

/// 0 for what is no number.
int toNumber(const QString& val) {
    return int(qMin(val.toUInt(), unsigned(std::numeric_limits<int>::max())));
}

/// n of the 1/n second that the camera offers as this time, in nanoseconds; 0 when it does not.
int fractionAt(DOC_Interface& doc, int time) {
    const int index = doc.control().getShutterSpeedList(2).indexOf(time);
    return index >= 0 ? doc.control().getShutterSpeedList(1).value(index) : 0;
}

}  // namespace

void ParameterEditing::setParamLock(const DocKeyList& keys, bool lock) {
    if (!m_host.isLiveMode()) {
        return;
    }
    m_isSent = true;
    GatheredFailures failures;
    forEachConnected(m_host, keys, failures, [lock](DOC_Interface& doc) {
        if (!doc.control().isLowLightMode()) {
            doc.lock().setParamLock(lock);
        }
    });
    failures.rethrow();
}

void ParameterEditing::setFrameRate(const DocKeyList& keys, const QString& val) {
    changeShared(keys, RecordRate, {cameraaction::FrameRate, val},
                 [&](const DocList& docs) { m_host.cameraOps().setRecordRate(docs, val.toUInt()); });
}

void ParameterEditing::setShutterSpeed(const DocKeyList& keys, const QString& val) {
    changeShared(keys, ShutterSpeed, {cameraaction::Shutter, val}, [&](const DocList& docs) {
        m_host.cameraOps().setShutterSpeed(docs, shutterFraction(docs, toNumber(val)));
    });
}

void ParameterEditing::setResolution(const DocKeyList& keys, const QString& val) {
    changeShared(keys, Resolution, {cameraaction::ImageSize, val}, [&](const DocList& docs) {
        const QStringList sides = val.split(QLatin1Char('x'));
        m_host.cameraOps().setResolution(docs, sides.value(0).trimmed().toInt(), sides.value(1).trimmed().toInt());
    });
}

void ParameterEditing::setReduceMode(const DocKeyList& keys, bool on) {
    change(orAllConnected(keys), {cameraaction::LiveSpeed, cameraaction::flag(on)}, [&](const DocList& docs) {
        // Its end takes a new image, so that a live view that stands shows the change.
        DocumentGuard guard(m_host);
        m_host.cameraOps().setReduceMode(docs, on);
        guard.release();
    });
}

void ParameterEditing::setLowLight(const DocKeyList& keys, bool on) {
    change(orAllConnected(keys), {cameraaction::LowLight, cameraaction::flag(on)},
           [&](const DocList& docs) { m_host.cameraOps().setLowLight(docs, on); });
}

void ParameterEditing::setLowLightType(const DocKeyList& keys, bool fast) {
    change(keys, {cameraaction::LowLightType, cameraaction::flag(fast)}, [&](const DocList& docs) {
        m_host.cameraOps().setLowLightType(docs, fast ? zeb::LowLightTypeFast : zeb::LowLightTypeFine);
    });
}

void ParameterEditing::change(const DocKeyList& keys, const Change& change, const Setter& set) {
    if (!m_host.isLiveMode()) {
        return;
    }
    GatheredFailures failures;
    setOn(changeableDocs(m_host, keys, failures), change, failures, set);
}

void ParameterEditing::changeShared(const DocKeyList& keys, const SharedParameter& parameter, const Change& change,
                                    const Setter& set) {
    if (!m_host.isLiveMode() || change.value.isEmpty()) {
        return;
    }
    GatheredFailures failures;
    setOn(changeableDocs(m_host, keys, parameter, failures), change, failures, set);
}

/// Cameras that are left out because they failed before are named beside those that fail now.
void ParameterEditing::setOn(const DocList& docs, const Change& change, GatheredFailures& failures, const Setter& set) {
    m_isSent = !docs.isEmpty();
    if (m_isSent) {
        const DocKeyList keys = keysOf(docs);
        const UndoStep step(m_host, change.action, *docs.first(), change.value);
        failures.attempt([&] {
            const DocList still = docsOf(m_host.docManager(), keys);
            if (!still.isEmpty()) {
                set(still);
            }
        });
    }
    failures.rethrow();
}

DocKeyList ParameterEditing::orAllConnected(const DocKeyList& keys) const {
    return keys.isEmpty() ? m_host.docManager().getConnectedDocKeys(0) : keys;
}

/// Cameras take n of 1/n second, whatever list the user sees. Throws when nobody knows the n of a time, which must not
/// go out as one itself.
int ParameterEditing::shutterFraction(const DocList& docs, int value) const {
    if (m_host.getPrefInt(QStringLiteral("display/ShutterSpeed")) != zeb::ShutterDisplaySecondList) {
        return value;
    }
    DOC_Interface* current = docs.size() > 1 ? m_host.docManager().getCurrentDoc() : nullptr;
    const DocList asked = current != nullptr ? DocList{current} + docs : docs;
    GatheredFailures unread;
    int fraction = 0;
    for (DOC_Interface* doc : value > 0 ? asked : DocList()) {
        attemptOn(*doc, unread, [&] {
            if (fraction <= 0 && doc->isConnected()) {
                fraction = fractionAt(*doc, value);
            }
        });
    }
    unread.log();
    for (const QString& allowed : value > 0 && fraction <= 0 ? m_allowed.shutterSpeeds : QStringList()) {
        const int n = allowed.toInt();
        if (n > 0 && zeb::NanosecondsPerSecond / n == value) {
            fraction = n;
        }
    }
    if (fraction > 0) {
        return fraction;
    }
    throw std::runtime_error(m_host.translate(TextKey("No camera offers the shutter speed %1."))
                                 .arg(docs.first()->formatShutterSpeed(value, 0))
                                 .toStdString());
}
