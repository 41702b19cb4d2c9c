#include "DeviceInfo.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QVariantMap>

namespace {

/// A page that meets an entry cut short finds every member.
QVariantMap emptyEntry(DOCKEY key) {
    const QStringList texts = {
        QStringLiteral("cameraname"), QStringLiteral("devicename"),   QStringLiteral("ipaddress"),
        QStringLiteral("selected"),   QStringLiteral("found"),        QStringLiteral("mobile"),
        QStringLiteral("dummy"),      QStringLiteral("shutdown"),     QStringLiteral("sup-wifi"),
        QStringLiteral("con-wifi"),   QStringLiteral("sup-linkspeed")};
    QVariantMap entry{{QStringLiteral("key"), QString::number(key)}, {QStringLiteral("headno"), 0}};
    for (const QString& member : texts) {
        entry[member] = QStringLiteral("");
    }
    return entry;
}

void mark(QVariantMap& entry, const QString& member, const QString& text, bool set) {
    if (set) {
        entry[member] = text;
    }
}

void readNames(QVariantMap& entry, const DOC_Control& camera) {
    entry[QStringLiteral("cameraname")] = camera.getCameraName(0);
    const QString alias = camera.getDeviceAlias(1);
    entry[QStringLiteral("devicename")] = alias.isEmpty() ? camera.getDeviceName(1) : alias;
    entry[QStringLiteral("ipaddress")] = camera.getAddress(1);
    entry[QStringLiteral("headno")] = camera.getHeadNumber();
}

void readMarks(QVariantMap& entry, DOC_Interface& doc) {
    const DOC_Control& camera = doc.control();
    mark(entry, QStringLiteral("selected"), QStringLiteral("ui-selected"), doc.isSelected());
    mark(entry, QStringLiteral("found"), QStringLiteral("found"), doc.isConnected());
    mark(entry, QStringLiteral("mobile"), QStringLiteral("mobile"), doc.isMobileSelected());
    mark(entry, QStringLiteral("dummy"), QStringLiteral("dummy"), camera.isDummy());
    mark(entry, QStringLiteral("shutdown"), QStringLiteral("sup-shutdown"),
         camera.isFunctionSupported(zeb::FunctionShutdown, 1));
    mark(entry, QStringLiteral("sup-wifi"), QStringLiteral("sup-wifi"),
         camera.isFunctionSupported(zeb::FunctionWifi, 1));
    mark(entry, QStringLiteral("con-wifi"), QStringLiteral("connected"), camera.getWifiState() == 1);
    mark(entry, QStringLiteral("sup-linkspeed"), QStringLiteral("sup-linkspeed"), camera.getLinkSpeedState() == 1);
}

void appendEntry(QVariantList& devices, DOC_Interface& doc, DOCKEY key) {
    QVariantMap entry = emptyEntry(key);
    try {
        readNames(entry, doc.control());
        readMarks(entry, doc);
    } catch (...) {
        entry[QStringLiteral("found")] = QStringLiteral("");
        devices.append(entry);
        throw;
    }
    devices.append(entry);
}

}  // namespace

void appendDeviceInfo(QVariantList& devices, ZebHost& host, bool isMinilist) {
    const bool connectedOnly = isMinilist && host.getOperatingMode() == zeb::LiveMode &&
                               host.getPrefBool(QLatin1String(ConnectedCameraOnlyPref), false);
    ZebDocManager& docs = host.docManager();
    for (const DOCKEY key : docs.getDocKeys(1)) {
        DOC_Interface* doc = docs.getDoc(key, 1);
        if (!doc || (connectedOnly && !doc->isConnected())) {
            continue;
        }
        appendEntry(devices, *doc, key);
    }
}
