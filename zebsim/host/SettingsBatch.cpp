#include "SettingsBatch.h"

#include "Camera.h"
#include "CameraBank.h"
#include "HeadSettings.h"
#include "HostBatch.h"
#include "HostContext.h"
#include "HostMessages.h"
#include "LoadTexts.h"

#include <QSet>

#include <map>

LoadPlan SettingsBatch::plan(const QList<HeadSettings>& wanted) const {
    QList<PlanCamera> cameras;
    for (const Camera* camera : m_host.cameras.known()) {
        if (camera->device().isFound()) {
            cameras.append({camera->key(), m_host.cameras.labelOf(*camera), camera->device().address(),
                            camera->headNumber(), camera->device().sharedModel(), camera->state(), camera->isGone()});
        }
    }
    return planLoad(wanted, cameras);
}

/// A head without a change may lose what it has to one of the others.
std::vector<SettingsBatch::Row> SettingsBatch::carryOut(const LoadPlan& plan,
                                                        const std::function<bool(const CameraPlan&)>& isMeant) const {
    QSet<QString> devices;
    for (const CameraPlan& camera : plan.cameras) {
        if (!camera.changes().isEmpty()) {
            devices.insert(camera.camera.address);
        }
    }
    std::vector<Row> rows;
    for (const CameraPlan& camera : plan.cameras) {
        if (camera.left == CameraPlan::Taken && devices.contains(camera.camera.address) && isMeant(camera)) {
            rows.push_back({&camera, m_host.cameras.hold(camera.camera.key), {}, {}});
        }
    }
    give(rows);
    return rows;
}

/// Heads of a device one after the other, for they share settings.
void SettingsBatch::give(std::vector<Row>& rows) const {
    std::map<const CameraDevice*, std::vector<Row*>> devices;
    DocKeyList keys;
    for (Row& row : rows) {
        if (row.camera) {
            devices[&row.camera->device()].push_back(&row);
            keys.append(row.camera->key());
        }
    }
    const HeldCameras cameras = m_host.cameras.holdDevices(keys);
    const auto answers = m_host.batch.run(cameras, [&devices](const Camera& camera) {
        for (Row* row : devices.at(&camera.device())) {
            row->answer = loadSettings(*row->camera, *row->plan);
        }
        for (Row* row : devices.at(&camera.device())) {
            readBack(*row->camera, row->answer);
        }
    });
    for (std::size_t i = 0; i < answers.size(); ++i) {
        for (Row* row : devices.at(&cameras[i]->device())) {
            row->leftOut = answers[i].reason;
        }
    }
}

QStringList SettingsBatch::surprisesOf(const Row& row) const {
    const LoadTexts texts(m_host.translator);
    if (!row.camera || row.camera->isGone()) {
        return {texts.gone(*row.plan)};
    }
    return row.leftOut.isEmpty() ? texts.surprises(*row.plan, row.answer)
                                 : QStringList{m_host.messages.translated(row.leftOut)};
}
