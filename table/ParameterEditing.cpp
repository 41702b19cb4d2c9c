#include "ParameterEditing.h"

#include "ChangeableDocs.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "DocumentGuard.h"
#include "ZebCameraOps.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

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
    for (const DOCKEY key : keys) {
        DOC_Interface* doc = m_host.docManager().getDocAny(key);
        if (doc != nullptr && doc->isConnected() && !doc->control().isLowLightMode()) {
            doc->lock().setParamLock(lock);
        }
    }
}

void ParameterEditing::setFrameRate(const DocKeyList& keys, const QString& val) {
    if (!mayChange(val)) {
        return;
    }
    const DocList docs = changeableDocs(m_host, keys, RecordRate);
    if (!docs.isEmpty()) {
        m_host.cameraOps().setRecordRate(docs, val.toUInt());
    }
}

void ParameterEditing::setShutterSpeed(const DocKeyList& keys, const QString& val) {
    if (!mayChange(val)) {
        return;
    }
    const DocList docs = changeableDocs(m_host, keys, ShutterSpeed);
    if (!docs.isEmpty()) {
        m_host.cameraOps().setShutterSpeed(docs, shutterFraction(docs, toNumber(val)));
    }
}

void ParameterEditing::setResolution(const DocKeyList& keys, const QString& val) {
    if (!mayChange(val)) {
        return;
    }
    const DocList docs = changeableDocs(m_host, keys, Resolution);
    if (!docs.isEmpty()) {
        const QStringList sides = val.split(QLatin1Char('x'));
        m_host.cameraOps().setResolution(docs, sides.value(0).trimmed().toInt(), sides.value(1).trimmed().toInt());
    }
}

void ParameterEditing::setReduceMode(const DocKeyList& keys, bool on) {
    if (!m_host.isLiveMode()) {
        return;
    }
    const DocList docs = changeableDocs(m_host, orAllConnected(keys));
    if (docs.isEmpty()) {
        return;
    }
    // Its end takes a new image, so that a live view that stands shows the change.
    DocumentGuard guard(m_host);
    m_host.cameraOps().setReduceMode(docs, on);
    guard.release();
}

void ParameterEditing::setLowLight(const DocKeyList& keys, bool on) {
    if (!m_host.isLiveMode()) {
        return;
    }
    const DocList docs = changeableDocs(m_host, orAllConnected(keys));
    if (!docs.isEmpty()) {
        m_host.cameraOps().setLowLight(docs, on);
    }
}

void ParameterEditing::setLowLightType(const DocKeyList& keys, bool fast) {
    if (!m_host.isLiveMode()) {
        return;
    }
    const DocList docs = changeableDocs(m_host, keys);
    if (!docs.isEmpty()) {
        m_host.cameraOps().setLowLightType(docs, fast ? zeb::LowLightTypeFast : zeb::LowLightTypeFine);
    }
}

bool ParameterEditing::mayChange(const QString& val) const {
    return m_host.isLiveMode() && !val.isEmpty();
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
