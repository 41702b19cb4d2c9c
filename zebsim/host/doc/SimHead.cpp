#include "SimHead.h"

#include "CameraBank.h"
#include "FileNameDetails.h"
#include "Preferences.h"
#include "SimAppStatus.h"

int SimHead::getDeviceCount() const {
    return m_host.cameras.deviceCount();
}

zeb::FileNameDetails SimHead::getFileNameDetails(int type, PARTITIONNUMBER /*partition*/, int session,
                                                 const QDateTime& /*time*/) const {
    const NamedCamera named{m_camera.name(), m_host.cameras.deviceNumberOf(m_camera) + 1, m_camera.headNumber(),
                            DeviceCounts{m_host.cameras.deviceCount(), int(m_camera.device().heads().size())}};
    const auto pref = [this](const QString& key) { return m_host.prefs.value(key); };
    return fileNameDetails(pref, type, m_host.appStatus.mode() == zeb::FileMode, named, session);
}
