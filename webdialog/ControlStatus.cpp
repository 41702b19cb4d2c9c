#include "ControlStatus.h"

#include "ZebAppStatus.h"
#include "ZebHost.h"

#include <QJsonObject>

QJsonObject controlStatus(ZebHost& host) {
    return {
        {QStringLiteral("IsLiveMode"), host.isLiveMode()},
        {QStringLiteral("IsMemoryMode"), host.isMemoryMode()},
        {QStringLiteral("IsFileMode"), host.isFileMode()},
        {QStringLiteral("IsWren"), host.appStatus().isWrenRunning()},
        {QStringLiteral("IsOtherPluginOpen"), host.isOtherPluginOpen()},
    };
}
