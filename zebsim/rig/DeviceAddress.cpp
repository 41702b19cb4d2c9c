#include "DeviceAddress.h"

#include <QRegularExpression>

QString readDeviceAddress(const JsonNode& node) {
    static const QRegularExpression ipv4(
        QStringLiteral("^((25[0-5]|2[0-4]\\d|1\\d\\d|[1-9]?\\d)\\.){3}(25[0-5]|2[0-4]\\d|1\\d\\d|[1-9]?\\d)\\z"));
    const QString address = node.text();
    if (!ipv4.match(address).hasMatch()) {
        node.fail(QStringLiteral("\"%1\" is no IPv4 address").arg(address));
    }
    return address;
}
