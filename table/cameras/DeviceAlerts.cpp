#include "DeviceAlerts.h"

#include "DOC_Interface.h"

QStringList alertsOfDevice(const DOC_Interface* device) {
    return device != nullptr && device->isConnected() ? device->getAlerts() : QStringList();
}
