#include "BenchHost.h"

#include "Camera.h"
#include "RigFile.h"

namespace {

Rig connectedRig(int cameras) {
    Rig rig = standardRig(2 * cameras);
    for (int place = 0; place < rig.devices.size(); ++place) {
        RigDevice& device = rig.devices[place];
        device.found = place % 2 == 0;
        device.heads.first().connected = true;
    }
    return rig;
}

QVariantMap shownValues(bool standard) {
    return {{QStringLiteral("rate"), standard ? 1000 : 500},
            {QStringLiteral("resolution"), QVariantList{1024, standard ? 1024 : 512}},
            {QStringLiteral("shutter"), standard ? 1000 : 2000},
            {QStringLiteral("triggerMode"), standard ? zeb::TriggerStart : zeb::TriggerCenter},
            {QStringLiteral("reduce"), !standard},
            {QStringLiteral("mobile"), !standard},
            {QStringLiteral("alerts"), standard ? QStringList() : QStringList(QStringLiteral("Fan"))},
            {QStringLiteral("status"), standard ? zeb::CameraLive : zeb::CameraRecReady},
            {QStringLiteral("syncStatus"), standard ? QStringLiteral("No Sync") : QStringLiteral("Sync In")}};
}

/// Gives a camera what the row of `before` does not show.
void showOtherThan(const CameraState& before, Camera& camera, bool otherLock, int run) {
    QVariantMap values = shownValues(before.rate != 1000);
    values.insert(QStringLiteral("name"), QStringLiteral("Camera %1 of %2").arg(camera.key()).arg(run));
    values.insert(QStringLiteral("locked"), before.locked != otherLock);
    camera.change(values);
}

}  // namespace

BenchHost::BenchHost(int cameras) : m_host(m_clock, m_desk, m_folder.filePath(QStringLiteral("bench.ini"))) {
    m_host.journal().setEnabled(false);
    m_host.setRig(connectedRig(cameras));
    Preferences& prefs = m_host.prefs();
    // No tick of the table's own comes in between.
    prefs.setValue(QStringLiteral("wren/table/interval"), 1000000);
    prefs.setValue(QStringLiteral("wren/table/w"), 1800);
    prefs.setValue(QStringLiteral("wren/table/h"), 1000);
    prefs.setValue(QStringLiteral("wren/settings/done"), true);
}

void BenchHost::change(int step, int run) {
    const auto cameras = m_host.cameras().all();
    for (int index = 0; index < int(cameras.size()); index += step) {
        Camera& camera = *cameras[index];
        showOtherThan(camera.state(), camera, index % (10 * step) == 0, run);
    }
}

void BenchHost::changeHidden() {
    Camera& camera = *m_host.cameras().all().front();
    const bool fast = camera.get(&CameraState::lowLightType) == zeb::LowLightTypeFast;
    camera.set(&CameraState::lowLightType, fast ? zeb::LowLightTypeFine : zeb::LowLightTypeFast);
}

void BenchHost::showOthers(int run) {
    const auto before = m_host.cameras().all();
    for (Camera* camera : m_host.cameras().known()) {
        camera->device().setFound(!camera->device().isFound());
    }
    const auto others = m_host.cameras().all();
    for (int index = 0; index < int(others.size()); ++index) {
        showOtherThan(before[index]->state(), *others[index], index % 10 == 0, run);
    }
}
