#include "BridgeCall.h"
#include "DOC_Interface.h"
#include "JS_Mediator_FileDialog.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

void JS_Mediator_FileDialog::applySkipMode(int mode) {
    m_skipPrefs.setMode(mode);
}

void JS_Mediator_FileDialog::applySkipFrames(double val) {
    m_skipPrefs.setDistance(val, frameSkip());
}

void JS_Mediator_FileDialog::setSkipMode(int mode) {
    call(*this, Traced, __func__, {{"mode", mode}}, [&] { applySkipMode(mode); });
}

int JS_Mediator_FileDialog::getSkipMode() {
    return call(*this, TracedQuery, __func__, {}, [this] { return m_skipPrefs.mode(); });
}

void JS_Mediator_FileDialog::setSkipFrames(double val) {
    call(*this, Traced, __func__, {{"val", val}}, [&] { applySkipFrames(val); });
}

double JS_Mediator_FileDialog::getSkipFrames() {
    return call(*this, TracedQuery, __func__, {}, [this] { return m_skipPrefs.distance(frameSkip()); });
}

void JS_Mediator_FileDialog::refreshSkipFrame(const QVariantMap& targets) {
    call(*this, TracedQuery, __func__, {{"targets", QStringList(targets.keys()).join(QLatin1Char(','))}}, [&] {
        m_targets.clear();
        ExportTargets documents;
        for (auto target = targets.begin(); target != targets.end(); ++target) {
            const DOCKEY key = target.key().toUInt();
            DOC_Interface* doc = host().docManager().getDoc(key, 1);
            for (const QVariant& number : target->toList()) {
                const PARTITIONNUMBER partition = number.toUInt();
                m_targets.append({key, partition});
                if (doc != nullptr && doc->isConnected()) {
                    documents[doc].append(partition);
                }
            }
        }
        Q_EMIT selectedDocCount(targets.size());
        refreshSkipFrames(documents);
    });
}
