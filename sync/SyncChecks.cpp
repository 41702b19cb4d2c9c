#include "SyncChecks.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "SyncableDocs.h"
#include "UTL_Exception.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <algorithm>

namespace {

/// Modes in which cameras of different exposure can share a trigger.
bool suitsMixedExposure(int triggerMode) {
    switch (triggerMode) {
        case zeb::TriggerCenter:
        case zeb::TriggerEnd:
        case zeb::TriggerRandom:
        case zeb::TriggerManual:
        case zeb::TriggerRandomCenter:
        case zeb::TriggerRandomManual:
        case zeb::TriggerRecOnCmd:
        case zeb::TriggerRandomLoop:
            return true;
        default:
            return false;
    }
}

bool isMixed(const QList<SyncFitness>& cameras) {
    return std::any_of(cameras.begin(), cameras.end(),
                       [&cameras](const SyncFitness& camera) { return camera.delayed != cameras.first().delayed; });
}

void failIf(bool unfit, const ZebHost& host, const QString& reason) {
    if (unfit) throw UTL_Exception(host.translate(reason));
}

void checkDummies(ZebHost& host, const DocList& docs) {
    for (DOC_Interface* doc : docs)
        failIf(doc->control().isDummy(), host, QStringLiteral("Dummy camera can not set synchronization"));
}

QList<SyncFitness> readFitness(const ZebHost& host, const DocList& docs) {
    const QList<int> capable = host.getSyncCapableCameraTypes();
    QList<SyncFitness> cameras;
    for (DOC_Interface* doc : docs) {
        const DOC_Control& control = doc->control();
        cameras.append({capable.contains(control.getCameraType()), control.getTriggerMode(), control.isLowLightMode(),
                        control.getExposureDelayClass() != 0});
    }
    return cameras;
}

void checkExposureControl(ZebHost& host) {
    for (const DOCKEY key : host.docManager().getConnectedDocKeys(1)) {
        DOC_Interface* doc = host.docManager().getDocAny(key);
        if (doc == nullptr || !doc->isConnected()) continue;
        failIf(doc->control().isDualSlopeShutter() != 0, host,
               QStringLiteral("Synchronization setting can not be done because there is a dual slope shutter camera."));
        failIf(doc->control().isAutoExposure(), host,
               QStringLiteral("Synchronization setting is impossible because there is a camera with automatic exposure "
                              "control."));
    }
}

}  // namespace

QString syncObstacle(const QList<SyncFitness>& cameras) {
    if (cameras.isEmpty()) return {};
    const int triggerMode = cameras.first().triggerMode;
    for (const SyncFitness& camera : cameras) {
        if (!camera.supported) return QStringLiteral("The selected camera does not support sync setting");
        if (camera.triggerMode != triggerMode)
            return QStringLiteral("Sync setting is possible only when all cameras are in the same trigger mode.");
        if (camera.lowLight)
            return QStringLiteral("Synchronization setting is impossible due to the presence of low light camera.");
    }
    if (isMixed(cameras) && !suitsMixedExposure(triggerMode))
        return QStringLiteral(
            "Since the cameras with different exposure timings are mixed, the trigger mode of the start system can not "
            "be used. Consider using manual mode.");
    return {};
}

void checkSyncCapability(ZebHost& host) {
    const DocList docs = host.docManager().getCameraDocs();
    checkDummies(host, docs);
    const QString obstacle = syncObstacle(readFitness(host, withoutDummies(docs)));
    failIf(!obstacle.isEmpty(), host, obstacle);
    checkExposureControl(host);
}
