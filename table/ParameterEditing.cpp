#include "ParameterEditing.h"

#include "ChangeableDocs.h"
#include "DOC_Control.h"
#include "DOC_Lock.h"
#include "DocumentGuard.h"
#include "ZebCameraOps.h"

#include <limits>

namespace {

/// 0 for what is no number.
int toNumber(const QString& val) {
    return int(qMin(val.toUInt(), unsigned(std::numeric_limits<int>::max())));
}

}  // namespace

void ParameterEditing::setParamLock(const DocKeyList& keys, bool lock) {
    if (!m_host.isLiveMode()) {
        return;
    }
    GatheredFailures failures;
    forEachConnected(m_host, keys, failures, [lock](DOC_Interface& doc) {
        if (!doc.control().isLowLightMode()) {
            doc.lock().setParamLock(lock);
        }
    });
    failures.rethrow();
}

void ParameterEditing::setFrameRate(const DocKeyList& keys, const QString& val) {
    changeShared(keys, RecordRate, val,
                 [&](const DocList& docs) { m_host.cameraOps().setRecordRate(docs, val.toUInt()); });
}

void ParameterEditing::setShutterSpeed(const DocKeyList& keys, const QString& val) {
    changeShared(keys, ShutterSpeed, val, [&](const DocList& docs) {
        m_host.cameraOps().setShutterSpeed(docs, shutterFraction(docs, toNumber(val)));
    });
}

void ParameterEditing::setResolution(const DocKeyList& keys, const QString& val) {
    changeShared(keys, Resolution, val, [&](const DocList& docs) {
        const QStringList sides = val.split(QLatin1Char('x'));
        m_host.cameraOps().setResolution(docs, sides.value(0).trimmed().toInt(), sides.value(1).trimmed().toInt());
    });
}

void ParameterEditing::setReduceMode(const DocKeyList& keys, bool on) {
    change(orAllConnected(keys), [&](const DocList& docs) {
        // Its end takes a new image, so that a live view that stands shows the change.
        DocumentGuard guard(m_host);
        m_host.cameraOps().setReduceMode(docs, on);
        guard.release();
    });
}

void ParameterEditing::setLowLight(const DocKeyList& keys, bool on) {
    change(orAllConnected(keys), [&](const DocList& docs) { m_host.cameraOps().setLowLight(docs, on); });
}

void ParameterEditing::setLowLightType(const DocKeyList& keys, bool fast) {
    change(keys, [&](const DocList& docs) {
        m_host.cameraOps().setLowLightType(docs, fast ? zeb::LowLightTypeFast : zeb::LowLightTypeFine);
    });
}

void ParameterEditing::change(const DocKeyList& keys, const Setter& set) {
    if (!m_host.isLiveMode()) {
        return;
    }
    GatheredFailures failures;
    setOn(changeableDocs(m_host, keys, failures), failures, set);
}

void ParameterEditing::changeShared(const DocKeyList& keys, const SharedParameter& parameter, const QString& val,
                                    const Setter& set) {
    if (!m_host.isLiveMode() || val.isEmpty()) {
        return;
    }
    GatheredFailures failures;
    setOn(changeableDocs(m_host, keys, parameter, failures), failures, set);
}

/// Cameras that are left out because they failed before are named beside those that fail now.
void ParameterEditing::setOn(const DocList& docs, GatheredFailures& failures, const Setter& set) {
    if (!docs.isEmpty()) {
        failures.attempt([&] { set(docs); });
    }
    failures.rethrow();
}

DocKeyList ParameterEditing::orAllConnected(const DocKeyList& keys) const {
    return keys.isEmpty() ? m_host.docManager().getConnectedDocKeys(0) : keys;
}

/// Cameras take n of 1/n second, whatever list the user sees.
int ParameterEditing::shutterFraction(const DocList& docs, int value) const {
    if (m_host.getPrefInt(QStringLiteral("display/ShutterSpeed")) != zeb::ShutterDisplaySecondList) {
        return value;
    }
    DOC_Interface* doc = docs.size() == 1 ? docs.first() : m_host.docManager().getCurrentDoc();
    if (doc == nullptr || !doc->isConnected()) {
        return value;
    }
    const int index = doc->control().getShutterSpeedList(2).indexOf(value);
    return index >= 0 ? doc->control().getShutterSpeedList(1).value(index, value) : value;
}
