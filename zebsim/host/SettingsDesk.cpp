#include "SettingsDesk.h"

#include "HostContext.h"
#include "HostMessages.h"
#include "LoadTexts.h"
#include "SettingsBatch.h"
#include "SettingsReader.h"
#include "SimAppStatus.h"
#include "TextKey.h"
#include "Translator.h"
#include "UpdateCycle.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QtDebug>

#include <algorithm>

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
    const SettingsBatch batch(m_host);
    const LoadPlan shown = batch.plan(file);
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
        carryOut(path, batch.plan(file), shown);
    }
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
    const SettingsBatch batch(m_host);
    const auto rows = batch.carryOut(plan, [&shown](const CameraPlan& camera) {
        const CameraPlan* agreed = find(shown, camera.camera);
        return agreed != nullptr && agreed->left == CameraPlan::Taken;
    });
    QStringList surprises = texts.oddities(plan);
    for (const QString& known : texts.oddities(shown)) {
        surprises.removeOne(known);
    }
    for (const SettingsBatch::Row& row : rows) {
        surprises += batch.surprisesOf(row);
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
