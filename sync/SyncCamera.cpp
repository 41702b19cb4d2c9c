#include "SyncCamera.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"

#include <algorithm>

SyncCamera SyncCamera::read(DOC_Interface& doc) {
    const DOC_Control& control = doc.control();
    const int delayClass = control.getExposureDelayClass();
    return {doc.getKey(), control.getAddress(1), exposureClassOf(control.getExposureTimingClass(), delayClass),
            delayClass != 0};
}

QList<SyncCamera> SyncCamera::readAll(const DocList& docs) {
    QList<SyncCamera> cameras;
    for (DOC_Interface* doc : docs) {
        cameras.append(read(*doc));
    }
    return cameras;
}

ExposureClass exposureClassOf(int timingClass, int delayClass) {
    if (timingClass == zeb::ExposureTimingLeads) {
        return ExposureClass::A;
    }
    return delayClass != 0 ? ExposureClass::B : ExposureClass::N;
}

bool areMixed(const QList<SyncCamera>& cameras) {
    const auto delayed = [](const SyncCamera& camera) { return camera.delayed; };
    return std::any_of(cameras.begin(), cameras.end(), delayed) &&
           !std::all_of(cameras.begin(), cameras.end(), delayed);
}

bool isPostTrigger(int mode) {
    return mode == zeb::TriggerCenter || mode == zeb::TriggerEnd || mode == zeb::TriggerManual ||
           mode == zeb::TriggerRandomCenter || mode == zeb::TriggerRandomManual;
}

quint32 addressNumber(const QString& address) {
    quint32 number = 0;
    for (const QString& part : address.split(QLatin1Char('.'))) {
        number = number * 256 + part.toUInt();
    }
    return number;
}
