#include "SyncPreferences.h"

#include "ZebHost.h"
#include "ZebTypes.h"

bool syncprefs::isInUse(const ZebHost& host) {
    return host.isLiveMode() && host.getPrefBool(QStringLiteral("wren/settings/syncInEnable"));
}

bool syncprefs::isExternal(const ZebHost& host) {
    return isInUse(host) && host.getPrefBool(QStringLiteral("sync/external"));
}

bool syncprefs::usesHubs(const ZebHost& host) {
    return port(host) == zeb::SyncPortHub && !hubAddresses(host).isEmpty();
}

QStringList syncprefs::hubAddresses(const ZebHost& host) {
    QStringList addresses;
    for (const QString& each : host.getPrefString(QStringLiteral("sync/lport/ipaddress")).split(QLatin1Char(','))) {
        if (const QString address = each.trimmed(); !address.isEmpty()) {
            addresses.append(address);
        }
    }
    return addresses;
}

QString syncprefs::generatorAddress(const ZebHost& host) {
    return host.getPrefString(QStringLiteral("sync/generator/address"));
}

QString syncprefs::masterAddress(const ZebHost& host) {
    return host.getPrefString(QStringLiteral("sync/masterCamera"));
}

int syncprefs::port(const ZebHost& host) {
    return host.getPrefInt(QStringLiteral("sync/lport"));
}
