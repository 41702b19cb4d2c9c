#include "SyncChecks.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "SyncCamera.h"
#include "SyncableDocs.h"
#include "TextKey.h"
#include "UTL_Exception.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

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

/// An empty reason is none.
void failFor(const QString& reason, const ZebHost& host) {
    if (!reason.isEmpty()) {
        throw UTL_Exception(host.translate(reason));
    }
}

void failIf(bool unfit, const ZebHost& host, const QString& reason) {
    if (unfit) {
        failFor(reason, host);
    }
}

void checkDummies(ZebHost& host, const DocList& docs) {
    for (DOC_Interface* doc : docs) {
        failIf(doc->control().isDummy(), host, TextKey("Dummy camera can not set synchronization"));
    }
}

/// One camera after the other: a later one that does not answer hides no reason of an earlier one.
void checkFitness(const ZebHost& host, const DocList& docs) {
    if (docs.isEmpty()) {
        return;
    }
    const QList<int> capable = host.getSyncCapableCameraTypes();
    const int triggerMode = docs.first()->control().getTriggerMode();
    for (DOC_Interface* doc : docs) {
        const DOC_Control& control = doc->control();
        SyncFitness fitness{capable.contains(control.getCameraType()), triggerMode, false};
        // A camera that is unfit already is asked nothing more.
        if (fitness.supported) {
            fitness.triggerMode = control.getTriggerMode();
        }
        if (syncObstacle(fitness, triggerMode).isEmpty()) {
            fitness.lowLight = control.isLowLightMode();
        }
        failFor(syncObstacle(fitness, triggerMode), host);
    }
    if (areMixed(SyncCamera::readAll(docs))) {
        failFor(mixedExposureObstacle(triggerMode), host);
    }
}

void checkExposureControl(ZebHost& host) {
    for (const DOCKEY key : host.docManager().getConnectedDocKeys(1)) {
        DOC_Interface* doc = host.docManager().getDocAny(key);
        if (doc == nullptr || !doc->isConnected()) {
            continue;
        }
        failIf(doc->control().isDualSlopeShutter() != 0, host,
               TextKey("Synchronization setting can not be done because there is a dual slope shutter camera."));
        failIf(doc->control().isAutoExposure(), host,
               TextKey("Synchronization setting is impossible because there is a camera with automatic exposure "
                       "control."));
    }
}

}  // namespace

QString syncObstacle(const SyncFitness& camera, int reference) {
    if (!camera.supported) {
        return TextKey("The selected camera does not support sync setting");
    }
    if (camera.triggerMode != reference) {
        return TextKey("Sync setting is possible only when all cameras are in the same trigger mode.");
    }
    if (camera.lowLight) {
        return TextKey("Synchronization setting is impossible due to the presence of low light camera.");
    }
    return {};
}

QString mixedExposureObstacle(int triggerMode) {
    if (suitsMixedExposure(triggerMode)) {
        return {};
    }
    return TextKey(
        "Since the cameras with different exposure timings are mixed, the trigger mode of the start system can not be "
        "used. Consider using manual mode.");
}

void checkSyncCapability(ZebHost& host) {
    const DocList docs = host.docManager().getCameraDocs();
    checkDummies(host, docs);
    checkFitness(host, withoutDummies(docs));
    checkExposureControl(host);
}
