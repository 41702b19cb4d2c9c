#include "PluginColumn.h"

#include "ChangeableDocs.h"
#include "DOC_Lock.h"
#include "DOC_Storage.h"
#include "DocKeys.h"
#include "PLG_Interface.h"
#include "Style.h"
#include "TextKey.h"
#include "UTL_CustomAction.h"
#include "ZebAppStatus.h"

#include <QMenu>
#include <QPixmap>
#include <QPointer>
#include <QWidget>

namespace {

constexpr QRect BinInCommon(0, 811, 18, 18);
const QString DocKeyMember = QStringLiteral("dockey");
const QString PluginMember = QStringLiteral("plugin");

}  // namespace

bool PluginColumn::mayTouch(const QString& plugin, DOC_Interface& doc) const {
    if (!m_host.appStatus().isPluginEnabledFor(plugin, &doc)) {
        return false;
    }
    const PLG_Interface* object = m_host.appStatus().getPlugin(plugin);
    return object == nullptr || !object->isAvailableInMode(zeb::LiveMode) || !doc.lock().isParamLocked();
}

void PluginColumn::toggle(const DocKeyList& keys, const QString& plugin, bool enable) {
    if (m_host.isFileMode() || m_host.appStatus().getPlugin(plugin) == nullptr) {
        return;
    }
    GatheredFailures failures;
    forEachConnected(m_host, keys, failures, [&](DOC_Interface& doc) {
        if (mayTouch(plugin, doc)) {
            doc.storage().setPluginEffective(plugin, enable, 0);
        }
    });
    failures.rethrow();
}

void PluginColumn::runMenu(DOCKEY key, const QString& plugin, const QPoint& place,
                           const std::function<void(const QVariant&)>& chosen) {
    DOC_Interface* doc = m_host.isFileMode() ? nullptr : m_host.docManager().getDoc(key, 1);
    if (doc == nullptr || (doc->isConnected() && !mayTouch(plugin, *doc))) {
        return;
    }
    QWidget* window = m_host.getMainWindow();
    const QPointer<QMenu> menu(new QMenu(window));
    applyNativeStyle(m_host, *menu);
    // The map is the value: as the map of the action it would come by another signal.
    const QVariantMap entry{{DocKeyMember, QString::number(key)}, {PluginMember, plugin}};
    const QPointer<UTL_CustomAction> action(
        new UTL_CustomAction(m_host.translate(TextKey("Delete")), entry, {}, window));
    action->setIcon(QPixmap(QStringLiteral(":/is_common.png")).copy(BinInCommon));
    QObject::connect(action, &UTL_CustomAction::signalTriggered, action, chosen);
    menu->addAction(action);
    menu->exec(place);
    delete menu;
    delete action;
}

void PluginColumn::remove(const QVariantMap& entry) {
    const DOCKEY key = toDocKeys({entry.value(DocKeyMember)}).value(0, zeb::NoDocKey);
    const QString plugin = entry.value(PluginMember).toString();
    DOC_Interface* doc = m_host.isFileMode() ? nullptr : m_host.docManager().getDoc(key, 1);
    if (doc == nullptr || !doc->isConnected()) {
        return;
    }
    doc->storage().setPluginEffective(plugin, false, 0);
    if (m_host.appStatus().getPlugin(plugin) != nullptr) {
        m_host.docManager().setCurrentDoc(key, 1);
        // The image shows that it is gone.
        if (PLG_Interface* object = m_host.appStatus().getPlugin(plugin)) {
            object->previewToolGuarded(false);
        }
    }
}
