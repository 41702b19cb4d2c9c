#include "SettingsDesk.h"

#include "Camera.h"
#include "CameraBank.h"
#include "HostBatch.h"
#include "HostContext.h"
#include "HostMessages.h"
#include "LoadTexts.h"
#include "SettingsReader.h"
#include "SimAppStatus.h"
#include "TextKey.h"
#include "Translator.h"
#include "UpdateCycle.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QSet>
#include <QtDebug>

#include <algorithm>
#include <map>

namespace {

QString nameOf(const QString& path) {
    return QFileInfo(path).fileName();
}

const CameraPlan* find(const LoadPlan& plan, const PlanCamera& camera) {
    const auto found = std::find_if(plan.cameras.begin(), plan.cameras.end(), [&camera](const CameraPlan& each) {
        return each.camera.address == camera.address && each.camera.head == camera.head;
    });
    return found == plan.cameras.end() ? nullptr : &*found;
}

}  // namespace

void SettingsDesk::load(const QString& path) const {
    const QList<HeadSettings> file = readSettings(path);
    const LoadPlan shown = plan(file);
    if (shown.changes() == 0) {
        tellNothingToDo(path, shown);
        return;
    }
    const int mode = m_host.appStatus.mode();
    if (!agrees(path, shown)) {
        qInfo() << "Settings were not loaded:" << path;
    } else if (m_host.appStatus.mode() != mode) {
        m_host.messages.tell(Message::Warn, TextKey("The mode has changed. No setting was loaded."));
    } else {
        carryOut(path, plan(file), shown);
    }
}

LoadPlan SettingsDesk::plan(const QList<HeadSettings>& file) const {
    QList<PlanCamera> cameras;
    for (const Camera* camera : m_host.cameras.known()) {
        if (camera->device().isFound()) {
            cameras.append({camera->key(), m_host.cameras.labelOf(*camera), camera->device().address(),
                            camera->headNumber(), camera->device().sharedModel(), camera->state(), camera->isGone()});
        }
    }
    return planLoad(file, cameras);
}

void SettingsDesk::tellNothingToDo(const QString& path, const LoadPlan& plan) const {
    const QStringList lines = LoadTexts(m_host.translator).preview(plan);
    if (lines.isEmpty()) {
        const QString text = m_host.translator.translate(TextKey("All cameras are as in \"%1\" already."));
        m_host.messages.notify(Message::Info, text.arg(nameOf(path)));
    } else {
        const QString text = m_host.translator.translate(
            TextKey("Loading \"%1\" changes nothing. %2 settings are as in the file already."));
        m_host.messages.tell(Message::Warn, text.arg(nameOf(path), QString::number(plan.equal())), lines);
    }
}

bool SettingsDesk::agrees(const QString& path, const LoadPlan& plan) const {
    const QString question = m_host.translator
                                 .translate(TextKey("Load the settings of \"%1\"? %2 settings of %3 cameras change, "
                                                    "%4 are as in the file already."))
                                 .arg(nameOf(path), QString::number(plan.changes()),
                                      QString::number(plan.changingCameras()), QString::number(plan.equal()));
    const ButtonTexts buttons{{QMessageBox::Ok, m_host.translator.translate(TextKey("Load"))},
                              {QMessageBox::Cancel, m_host.translator.translate(TextKey("Cancel"))}};
    // The Enter that has chosen the file may still be held, or come twice.
    return m_host.messages.choose(question, nullptr, buttons, QMessageBox::Cancel,
                                  LoadTexts(m_host.translator).preview(plan)) == QMessageBox::Ok;
}

void SettingsDesk::carryOut(const QString& path, const LoadPlan& plan, const LoadPlan& shown) const {
    const LoadTexts texts(m_host.translator);
    qInfo() << "Settings are loaded:" << path << texts.preview(plan);
    std::vector<Row> rows = rowsOf(plan, shown);
    give(rows);
    QStringList surprises = texts.oddities(plan);
    for (const QString& known : texts.oddities(shown)) {
        surprises.removeOne(known);
    }
    for (const Row& row : rows) {
        surprises += surprisesOf(row);
    }
    m_host.updates.request();
    if (surprises.isEmpty()) {
        const QString text = m_host.translator.translate(TextKey("The settings of \"%1\" are loaded."));
        m_host.messages.notify(Message::Info, text.arg(nameOf(path)));
    } else {
        qWarning() << "Settings were not loaded as shown:" << path << surprises;
        const QString text = m_host.translator.translate(TextKey("Not all settings of \"%1\" were loaded."));
        m_host.messages.tell(Message::Warn, text.arg(nameOf(path)), surprises);
    }
}

/// A head without a change may lose what it has to one of the others.
std::vector<SettingsDesk::Row> SettingsDesk::rowsOf(const LoadPlan& plan, const LoadPlan& shown) const {
    QSet<QString> devices;
    for (const CameraPlan& camera : plan.cameras) {
        if (!camera.changes().isEmpty()) {
            devices.insert(camera.camera.address);
        }
    }
    std::vector<Row> rows;
    for (const CameraPlan& camera : plan.cameras) {
        const CameraPlan* agreed = find(shown, camera.camera);
        const bool isTaken = camera.left == CameraPlan::Taken && devices.contains(camera.camera.address);
        if (isTaken && agreed != nullptr && agreed->left == CameraPlan::Taken) {
            rows.push_back({&camera, m_host.cameras.hold(camera.camera.key), {}, {}});
        }
    }
    return rows;
}

/// Heads of a device one after the other, for they share settings.
void SettingsDesk::give(std::vector<Row>& rows) const {
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

QStringList SettingsDesk::surprisesOf(const Row& row) const {
    const LoadTexts texts(m_host.translator);
    if (!row.camera || row.camera->isGone()) {
        return {texts.gone(*row.plan)};
    }
    return row.leftOut.isEmpty() ? texts.surprises(*row.plan, row.answer)
                                 : QStringList{m_host.messages.translated(row.leftOut)};
}
