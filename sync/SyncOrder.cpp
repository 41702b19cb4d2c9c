#include "SyncOrder.h"

#include <algorithm>
#include <utility>

namespace {

int rankOf(ExposureClass exposure, bool delayedFirst) {
    switch (exposure) {
        case ExposureClass::A:
            return 1;
        case ExposureClass::N:
            return 2;
        case ExposureClass::B:
            return delayedFirst ? 0 : 3;
    }
    return 3;
}

}  // namespace

QList<SyncCamera> sortForSync(QList<SyncCamera> cameras, bool external, const QString& masterAddress, int triggerMode) {
    const bool delayedFirst = areMixed(cameras) && isPostTrigger(triggerMode);
    const auto place = [external, delayedFirst](const SyncCamera& camera) {
        return std::make_pair(external ? 0 : rankOf(camera.exposure, delayedFirst), addressNumber(camera.address));
    };
    std::stable_sort(cameras.begin(), cameras.end(),
                     [&place](const SyncCamera& left, const SyncCamera& right) { return place(left) < place(right); });
    if (external) {
        return cameras;
    }
    const quint32 master = addressNumber(masterAddress);
    const auto found = std::find_if(cameras.begin(), cameras.end(), [master](const SyncCamera& camera) {
        return addressNumber(camera.address) == master;
    });
    if (found != cameras.end()) {
        std::rotate(cameras.begin(), found, found + 1);
    }
    return cameras;
}
