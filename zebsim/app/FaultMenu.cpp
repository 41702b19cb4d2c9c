#include "FaultMenu.h"

#include "Camera.h"
#include "DialogRun.h"
#include "Operation.h"
#include "SimHost.h"
#include "UiText.h"

#include <QInputDialog>
#include <QtDebug>

namespace {

// Of each operation, of which an update asks some thirty.
constexpr int SlowMs = 20;
const QString Every = QString::fromLatin1(FaultPlan::EveryOperation);

QString faultText(const QString& operation, const Fault& fault) {
    const bool isEvery = operation == Every;
    if (fault.gone) {
        return isEvery ? uiText("has vanished") : uiText("vanishes at %1").arg(operation);
    }
    if (!fault.throws.isEmpty()) {
        return isEvery ? uiText("does not answer") : uiText("refuses %1").arg(operation);
    }
    const QString delay = QString::number(fault.delay);
    return isEvery ? uiText("is slow (%1 ms)").arg(delay) : uiText("is slow at %1 (%2 ms)").arg(operation, delay);
}

/// What a user plants on all operations of a camera.
QVector<Fault> faultsOfAll() {
    Fault silent;
    silent.throws = uiText("the camera does not answer");
    Fault slow;
    slow.delay = SlowMs;
    Fault gone;
    gone.gone = true;
    return {silent, slow, gone};
}

Fault refusing() {
    Fault fault;
    fault.throws = uiText("the camera refuses this");
    return fault;
}

}  // namespace

FaultMenu::FaultMenu(SimHost& host, DOCKEY key, QWidget* parent)
    : QMenu(uiText("Faults"), parent), m_host(host), m_key(key) {
    connect(this, &QMenu::aboutToShow, this, &FaultMenu::fill);
}

void FaultMenu::fill() {
    clear();
    const QHash<QString, Fault> planted = m_host.faults().planted(m_key);
    QStringList refused = planted.keys();
    refused.sort();
    const bool isOnAll = refused.removeOne(Every);
    const QString ofAll = isOnAll ? faultText(Every, planted.value(Every)) : QString();
    bool isUsual = false;
    for (const Fault& fault : faultsOfAll()) {
        const bool isThis = faultText(Every, fault) == ofAll;
        isUsual = isUsual || isThis;
        addFault(Every, fault, isThis);
    }
    if (isOnAll && !isUsual) {
        addFault(Every, planted.value(Every), true);
    }
    addSeparator();
    for (const QString& operation : qAsConst(refused)) {
        addFault(operation, planted.value(operation), true);
    }
    QAction* refuse = addAction(uiText("Refuse an operation..."));
    // The camera may vanish, and the menu with it, while the dialog stands.
    connect(refuse, &QAction::triggered, this, &FaultMenu::chooseRefused, Qt::QueuedConnection);
    addSeparator();
    QAction* liftAll = addAction(uiText("Lift all"), this, [this] { liftFaults(m_host, {m_key}); });
    liftAll->setEnabled(!planted.isEmpty());
}

void FaultMenu::addFault(const QString& operation, const Fault& fault, bool isPlanted) {
    QAction* entry = addAction(faultText(operation, fault));
    entry->setCheckable(true);
    entry->setChecked(isPlanted);
    connect(entry, &QAction::triggered, this, [this, operation, fault, isPlanted] {
        if (isPlanted) {
            lift(operation);
        } else {
            plant(operation, fault);
        }
    });
}

void FaultMenu::plant(const QString& operation, const Fault& fault) {
    qInfo() << "[USER] Fault of camera" << m_key << faultText(operation, fault);
    m_host.faults().plant(m_key, operation, fault);
    m_host.updates().request();
}

void FaultMenu::lift(const QString& operation) {
    qInfo() << "[USER] Fault of camera" << m_key << "is lifted:" << operation;
    QHash<QString, Fault> others = m_host.faults().planted(m_key);
    others.remove(operation);
    m_host.faults().plant(m_key, operation, {});
    // Without the one of all operations, those of single ones stay.
    for (auto other = others.begin(); other != others.end(); ++other) {
        m_host.faults().plant(m_key, other.key(), *other);
    }
    m_host.updates().request();
}

void FaultMenu::chooseRefused() {
    QStringList operations = CameraOperation::names().values();
    operations.sort();
    auto* dialog = new QInputDialog(m_host.getMainWindow());
    dialog->setWindowTitle(uiText("Faults"));
    dialog->setLabelText(uiText("The camera refuses this operation:"));
    dialog->setComboBoxItems(operations);
    dialog->setOkButtonText(uiText("OK"));
    dialog->setCancelButtonText(uiText("Cancel"));
    connect(dialog, &QInputDialog::textValueSelected, this,
            [this](const QString& operation) { plant(operation, refusing()); });
    runDialog(m_host, dialog);
}

QStringList plantedFaults(SimHost& host, DOCKEY key) {
    const QHash<QString, Fault> planted = host.faults().planted(key);
    QStringList texts;
    for (auto fault = planted.begin(); fault != planted.end(); ++fault) {
        texts.append(faultText(fault.key(), *fault));
    }
    texts.sort();
    return texts;
}

DocKeyList faultyCameras(SimHost& host) {
    DocKeyList faulty;
    for (const Camera* camera : host.cameras().known()) {
        if (!host.faults().planted(camera->key()).isEmpty()) {
            faulty.append(camera->key());
        }
    }
    return faulty;
}

void liftFaults(SimHost& host, const DocKeyList& cameras) {
    qInfo() << "[USER] All faults are lifted of cameras" << cameras;
    for (const DOCKEY key : cameras) {
        host.faults().plant(key, Every, {});
    }
    host.updates().request();
}
