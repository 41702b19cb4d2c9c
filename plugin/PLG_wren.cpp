#include "PLG_wren.h"

#include "APP_Exception.h"
#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "GUI_WrenTableDialog.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "NamedFailure.h"
#include "TextKey.h"
#include "ZebAppStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QDebug>

#include <memory>

PLG_wren::PLG_wren() {
    connect(this, &PLG_wren::signalRecord, this, &PLG_wren::slotRecord);
    connect(this, &PLG_wren::signalSaveFile, this, &PLG_wren::slotSaveFile);
    connect(this, &PLG_wren::signalSaveLayout, this, &PLG_wren::slotSaveLayout);
    connect(this, &PLG_wren::signalEndRecording, this, &PLG_wren::slotEndRecording);
    connect(this, &PLG_wren::signalDisconnect, this, &PLG_wren::slotDisconnect);
    connect(this, &PLG_wren::signalStartAutoUpdate, this, &PLG_wren::slotStartAutoUpdate);
    connect(this, &PLG_wren::signalStopAutoUpdate, this, &PLG_wren::slotStopAutoUpdate);
    // Whoever asks for the picture goes on only when its file is written.
    connect(this, &PLG_wren::signalScreenShot, this, &PLG_wren::slotScreenShot, Qt::BlockingQueuedConnection);

    m_name = QStringLiteral("wren");
    m_modeMask = 1 << zeb::LiveMode | 1 << zeb::MemoryMode;
    m_buttonType = 6;
    m_closeOnModeChange = false;
}

PLG_wren::~PLG_wren() {
    disconnect(this, nullptr, this, nullptr);
}

void PLG_wren::activate() {
    setRunningInHost(true);
}

void PLG_wren::deactivate() {
    setRunningInHost(false);
}

/// A host may destroy the plug-in when it hears of this.
void PLG_wren::setRunningInHost(bool running) {
    ZebHost& host = *m_host;
    const QPointer<PLG_wren> alive(this);
    host.appStatus().setWrenRunning(running);
    if (alive) {
        running ? PLG_Button::activate() : PLG_Button::deactivate();
    }
    host.updateUI(zeb::UpdateAll, true);
}

bool PLG_wren::isButtonEnabled() const {
    return !m_host->isFileMode();
}

void PLG_wren::prepareOpen() {
    ZebHost& host = *m_host;
    if (!host.isLiveMode() || host.appStatus().isWrenRunning()) {
        return;
    }

    ZebDocManager& docs = host.docManager();
    // One that does not tell whether it holds images keeps them, and the others are opened all the same.
    GatheredFailures unread;
    DocKeyList recorded;
    for (DOC_Interface* doc : connectedDocs(docs, docs.getConnectedDocKeys(), unread)) {
        attemptOn(*doc, unread, [&] {
            if (doc->control().hasRecordedData()) {
                recorded.append(doc->getKey());
            }
        });
    }
    unread.log();
    if (recorded.isEmpty()) {
        return;
    }

    if (!host.confirm(TextKey("There are cameras that need to erase the image data recorded to continue the "
                              "operation. Would you like to erase the data and continue the operation?"))) {
        throw APP_Exception(QString());
    }
    // A camera may have gone while the question stood.
    GatheredFailures failures;
    for (DOC_Interface* doc : connectedDocs(docs, recorded, failures)) {
        attemptOn(*doc, failures, [&] { doc->control().eraseRecordedData(0); });
    }
    failures.log();
    if (!failures.isEmpty()) {
        host.alert(failures.text(), host.getMainWindow());
    }
}

QDialog* PLG_wren::createDialog(bool) {
    ZebHost* const host = m_host;
    const QPointer<PLG_wren> alive(this);
    auto bridge = std::make_unique<JS_Mediator_WrenTableDialog>(host, QStringLiteral("wrentabledialog"), this);
    // The bridge may have asked its user something, and the plug-in be gone by now.
    if (!alive) {
        return nullptr;
    }
    return new GUI_WrenTableDialog(host, TextKey("WREN"), QStringLiteral("qrc:/wrentabledialog.html"), bridge.release(),
                                   this);
}

JS_Mediator_WrenTableDialog* PLG_wren::table() {
    auto* dialog = static_cast<GUI_WrenTableDialog*>(getDialog(false));
    return dialog ? qobject_cast<JS_Mediator_WrenTableDialog*>(dialog->getBridge()) : nullptr;
}

JS_Mediator_WrenTableDialog* PLG_wren::tableForKey() {
    auto* dialog = static_cast<GUI_WrenTableDialog*>(getDialog(false));
    if (!dialog || !dialog->isActiveWindow()) {
        return nullptr;
    }
    // What is sent may end in a question, and the plug-in be gone by the answer.
    const QPointer<PLG_wren> alive(this);
    dialog->finishTyping();
    return alive ? table() : nullptr;
}

void PLG_wren::slotRecord() {
    if (auto* bridge = tableForKey()) {
        bridge->record();
    }
}

void PLG_wren::slotSaveFile() {
    if (auto* bridge = tableForKey()) {
        bridge->save();
    }
}

void PLG_wren::slotSaveLayout() {
    if (auto* bridge = tableForKey()) {
        bridge->saveLayout();
    }
}

void PLG_wren::slotEndRecording() {
    if (auto* bridge = table()) {
        bridge->clearRecordRunning();
    }
}

void PLG_wren::slotDisconnect() {
    auto* bridge = table();
    if (!bridge) {
        return;
    }
    const DocKeyList connected = m_host->docManager().getConnectedDocKeys();
    QVariantList keys;
    for (const DOCKEY key : connected) {
        keys.append(key);
    }
    bridge->connect(keys, false, true);
}

void PLG_wren::slotStartAutoUpdate() {
    if (auto* bridge = table()) {
        bridge->startAutoUpdate();
    }
}

void PLG_wren::slotStopAutoUpdate() {
    if (auto* bridge = table()) {
        bridge->stopAutoUpdate();
    }
}

void PLG_wren::slotScreenShot(const QString& path) {
    QDialog* dialog = getDialog(false);
    if (dialog && !GUI_Dialog::saveGrab(dialog, path)) {
        qWarning() << "The picture of the table could not be saved:" << path;
    }
}
