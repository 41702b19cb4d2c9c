#include "TriedPrefs.h"

#include "Preferences.h"
#include "ZebPageBridge.h"

#include <QDialog>
#include <QHash>
#include <QWebView>

#include <algorithm>

void TriedPrefs::beginFor(const QWebView* view, const ZebPageBridge& bridge) {
    static const QHash<QString, QString> families = {
        {QStringLiteral("savedialog"), QStringLiteral("export/")},
        {QStringLiteral("layoutsavedialog"), QStringLiteral("layout/")},
        {QStringLiteral("snapshotdialog"), QStringLiteral("snap/")},
        {QStringLiteral("batchconverter"), QStringLiteral("convert/")},
        {QStringLiteral("convertparametereditdialog"), QStringLiteral("convert/")}};
    const QString family = families.value(bridge.bridgeName());
    auto* dialog = qobject_cast<QDialog*>(view->window());
    if (family.isEmpty() || dialog == nullptr) {
        return;
    }
    m_trials.append({dialog, family});
    connect(dialog, &QDialog::finished, this, [this, dialog](int result) { end(dialog, result == QDialog::Accepted); });
    connect(dialog, &QObject::destroyed, this, [this](QObject* gone) { end(gone, false); });
}

void TriedPrefs::set(const QString& key, const QVariant& value) {
    const auto trial = std::find_if(m_trials.rbegin(), m_trials.rend(),
                                    [&](const Trial& tried) { return key.startsWith(tried.family); });
    if (trial == m_trials.rend()) {
        m_prefs.setValue(key, value);
    } else {
        trial->keys.insert(key);
        m_prefs.assume(key, value);
    }
}

void TriedPrefs::end(QObject* dialog, bool isAccepted) {
    const auto isOf = [dialog](const Trial& trial) { return trial.dialog == dialog; };
    const auto found = std::find_if(m_trials.begin(), m_trials.end(), isOf);
    if (found == m_trials.end()) {
        return;
    }
    const Trial ended = *found;
    m_trials.erase(found);
    for (const QString& key : ended.keys) {
        if (isAccepted) {
            set(key, m_prefs.value(key));
        } else {
            m_prefs.takeStored(key);
        }
    }
}
