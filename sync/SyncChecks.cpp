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

/// The cameras that the checks are about, but for dummies, and what they are measured by.
struct Table {
    DocList cameras;
    QList<int> capable;
    int triggerMode = zeb::TriggerStart;

    explicit Table(ZebHost& host) : cameras(withoutDummies(host.docManager().getCameraDocs())) {
        if (!cameras.isEmpty()) {
            capable = host.getSyncCapableCameraTypes();
            triggerMode = cameras.first()->control().getTriggerMode();
        }
    }
};

/// A camera that is unfit already is asked nothing more.
std::optional<SyncObstacle> fitnessObstacle(const DOC_Control& camera, const Table& table) {
    if (!table.capable.contains(camera.getCameraType())) {
        return SyncObstacle::Unsupported;
    }
    if (camera.getTriggerMode() != table.triggerMode) {
        return SyncObstacle::TriggerMode;
    }
    if (camera.isLowLightMode()) {
        return SyncObstacle::LowLight;
    }
    return std::nullopt;
}

bool isUnfitMixture(const Table& table) {
    return areMixed(SyncCamera::readAll(table.cameras)) && !suitsMixedExposures(table.triggerMode);
}

std::optional<SyncObstacle> exposureObstacle(const DOC_Control& camera) {
    if (camera.isDualSlopeShutter() != 0) {
        return SyncObstacle::DualSlope;
    }
    if (camera.isAutoExposure()) {
        return SyncObstacle::AutoExposure;
    }
    return std::nullopt;
}

std::optional<SyncFinding> firstDummy(ZebHost& host) {
    for (DOC_Interface* doc : host.docManager().getCameraDocs()) {
        if (doc->control().isDummy()) {
            return SyncFinding{SyncObstacle::Dummy, doc};
        }
    }
    return std::nullopt;
}

/// One camera after the other: a later one that does not answer hides no reason of an earlier one.
std::optional<SyncFinding> firstUnfit(ZebHost& host) {
    const Table table(host);
    for (DOC_Interface* doc : table.cameras) {
        if (const auto obstacle = fitnessObstacle(doc->control(), table)) {
            return SyncFinding{*obstacle, doc};
        }
    }
    if (isUnfitMixture(table)) {
        return SyncFinding{SyncObstacle::MixedExposures, table.cameras.first()};
    }
    return std::nullopt;
}

std::optional<SyncFinding> firstOwnExposure(ZebHost& host) {
    for (const DOCKEY key : host.docManager().getConnectedDocKeys(1)) {
        DOC_Interface* doc = host.docManager().getDocAny(key);
        if (doc == nullptr || !doc->isConnected()) {
            continue;
        }
        if (const auto obstacle = exposureObstacle(doc->control())) {
            return SyncFinding{*obstacle, doc};
        }
    }
    return std::nullopt;
}

}  // namespace

QString textOf(SyncObstacle obstacle) {
    switch (obstacle) {
        case SyncObstacle::Dummy:
            return TextKey("Dummy camera can not set synchronization");
        case SyncObstacle::Unsupported:
            return TextKey("The selected camera does not support sync setting");
        case SyncObstacle::TriggerMode:
            return TextKey("Sync setting is possible only when all cameras are in the same trigger mode.");
        case SyncObstacle::LowLight:
            return TextKey("Synchronization setting is impossible due to the presence of low light camera.");
        case SyncObstacle::MixedExposures:
            return TextKey(
                "Since the cameras with different exposure timings are mixed, the trigger mode of the start system can "
                "not be used. Consider using manual mode.");
        case SyncObstacle::DualSlope:
            return TextKey("Synchronization setting can not be done because there is a dual slope shutter camera.");
        case SyncObstacle::AutoExposure:
            return TextKey(
                "Synchronization setting is impossible because there is a camera with automatic exposure control.");
    }
    return {};
}

bool suitsMixedExposures(int triggerMode) {
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

std::optional<SyncFinding> firstSyncObstacle(ZebHost& host) {
    for (const auto look : {firstDummy, firstUnfit, firstOwnExposure}) {
        if (const auto found = look(host)) {
            return found;
        }
    }
    return std::nullopt;
}

std::optional<SyncObstacle> syncObstacleOf(ZebHost& host, DOC_Interface& doc) {
    const DOC_Control& camera = doc.control();
    if (camera.isDummy()) {
        return SyncObstacle::Dummy;
    }
    const Table table(host);
    if (const auto obstacle = fitnessObstacle(camera, table)) {
        return obstacle;
    }
    return isUnfitMixture(table) ? SyncObstacle::MixedExposures : exposureObstacle(camera);
}

void checkSyncCapability(ZebHost& host) {
    if (const auto found = firstSyncObstacle(host)) {
        throw UTL_Exception(host.translate(textOf(found->obstacle)));
    }
}
