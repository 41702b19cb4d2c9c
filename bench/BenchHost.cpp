#include "BenchHost.h"

#include "Camera.h"
#include "RigFile.h"

namespace {

Rig connectedRig(int cameras) {
    Rig rig = standardRig(cameras);
    for (RigDevice& device : rig.devices) {
        for (CameraState& head : device.heads) {
            head.connected = true;
        }
    }
    return rig;
}

}  // namespace

BenchHost::BenchHost(int cameras)
    : m_cameras(cameras), m_host(m_clock, m_desk, m_folder.filePath(QStringLiteral("bench.ini"))) {
    m_host.journal().setEnabled(false);
    m_host.setRig(connectedRig(2 * m_cameras));
    showOthers(0);
    Preferences& prefs = m_host.prefs();
    // No tick of the table's own comes in between.
    prefs.setValue(QStringLiteral("wren/table/interval"), 1000000);
    prefs.setValue(QStringLiteral("wren/table/w"), 1800);
    prefs.setValue(QStringLiteral("wren/table/h"), 1000);
    prefs.setValue(QStringLiteral("wren/settings/done"), true);
}

void BenchHost::change(int step, int run) {
    const bool odd = run % 2 != 0;
    int index = 0;
    for (Camera* camera : m_host.cameras().all()) {
        if (index++ % step == 0) {
            camera->change(
                {{QStringLiteral("name"), QStringLiteral("Camera %1 of %2").arg(camera->key()).arg(run)},
                 {QStringLiteral("rate"), odd ? 500 : 1000},
                 {QStringLiteral("locked"), odd},
                 {QStringLiteral("syncStatus"), odd ? QStringLiteral("Sync In") : QStringLiteral("No Sync")}});
        }
    }
}

void BenchHost::changeHidden(int run) {
    for (Camera* camera : m_host.cameras().all()) {
        camera->change(
            {{QStringLiteral("lowLightType"), run % 2 != 0 ? zeb::LowLightTypeFast : zeb::LowLightTypeFine}});
    }
}

void BenchHost::showOthers(int run) {
    for (DOCKEY key = 1; key <= DOCKEY(2 * m_cameras); ++key) {
        Fault fault;
        fault.gone = (key + DOCKEY(run)) % 2 == 0;
        m_host.faults().plant(key, QStringLiteral("*"), fault);
    }
}
