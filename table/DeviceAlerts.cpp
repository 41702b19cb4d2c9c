#include "DeviceAlerts.h"

#include "DOC_Interface.h"

QStringList alertsOfDevice(const DOC_Interface& doc) {
    const DOC_Interface* device = doc.getParentDoc();
    return device != nullptr && device->isConnected() ? device->getAlerts() : QStringList();
}
