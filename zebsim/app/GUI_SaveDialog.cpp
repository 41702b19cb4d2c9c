#include "GUI_SaveDialog.h"

#include "DialogRun.h"
#include "FreshKeys.h"
#include "GUI_WebView.h"
#include "JS_Mediator_SaveDialog.h"
#include "PlanDialog.h"
#include "SavePageBridges.h"
#include "SaveTargets.h"
#include "SimHost.h"
#include "TextKey.h"
#include "UiText.h"

#include <QPointer>

namespace {

constexpr QSize Wanted{1180, 700};
constexpr QSize SettingsSize{560, 560};

QString pageOf(const QString& name) {
    return QStringLiteral("qrc:/%1.html").arg(name);
}

}  // namespace

GUI_SaveDialog::GUI_SaveDialog(SimHost& host, const QString& title, JS_Mediator_SaveDialog* bridge, QWidget* parent)
    : GUI_WebViewDialog(&host, title, pageOf(bridge->bridgeName()), bridge, parent),
      m_simHost(host),
      m_saving(*bridge) {
    addSaveOptions(host, *this);
    resizeOnScreen(*this, Wanted);
    takeFreshKeysOnly(*getWebView());
    connect(bridge, &JS_Mediator_SaveDialog::saveWanted, this, &GUI_SaveDialog::save);
}

/// The bridge counts as busy: neither it nor the page goes before this has returned.
void GUI_SaveDialog::save() {
    const std::vector<SaveTrack> tracks = m_saving.chosenTracks();
    if (tracks.empty()) {
        return;
    }
    const QPointer<GUI_SaveDialog> alive(this);
    m_names = std::make_unique<NamePromises::Save>(m_simHost.saver().promises());
    std::optional<SavePlan> plan;
    try {
        plan = composePlan(m_simHost, tracks, m_saving.absent(), m_saving.time());
    } catch (const std::exception& e) {
        m_simHost.messages().tell(Message::Alert, uiText(QString::fromUtf8(e.what())), {}, this);
    }
    const bool isAgreed = plan && runDialog(m_simHost, new PlanDialog(*plan, this)) == QDialog::Accepted;
    if (!alive) {
        return;
    }
    if (isAgreed) {
        m_plan = std::move(plan);
        accept();
    } else {
        m_names.reset();
    }
}

void runSnapShotSettings(SimHost& host) {
    const QString name = QStringLiteral("snapshotdialog");
    auto* dialog = new GUI_WebViewDialog(&host, TextKey("Snapshots"), pageOf(name),
                                         new JS_Mediator_FileDialog(&host, name), host.getMainWindow());
    addSaveOptions(host, *dialog);
    resizeOnScreen(*dialog, SettingsSize);
    runDialog(host, dialog);
}
