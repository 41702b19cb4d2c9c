#include "CameraEdit.h"
#include "CameraManagement.h"

namespace {

/// Selections that follow each other within this time make one update. Milliseconds.
constexpr int SelectionWait = 500;

}  // namespace

template <>
CameraManagement JS_Mediator_WrenTableDialog::topic() {
    return {host(), m_state};
}

QString JS_Mediator_WrenTableDialog::getSearchAddress() {
    return call(*this, Traced, __func__, {}, [this] { return topic<CameraManagement>().getSearchAddress(); });
}

void JS_Mediator_WrenTableDialog::searchCamera(const QString& ipAddress) {
    call(*this, Change, __func__, {{"ipAddress", ipAddress}},
         [&] { topic<CameraManagement>().searchCamera(ipAddress); });
}

void JS_Mediator_WrenTableDialog::discoverysearch() {
    call(*this, Change, __func__, {}, [this] { topic<CameraManagement>().discover(); });
}

void JS_Mediator_WrenTableDialog::updateCamera() {
    call(*this, Change, __func__, {}, [this] { topic<CameraManagement>().update(); });
}

void JS_Mediator_WrenTableDialog::deleteAllCamera() {
    call(*this, Change, __func__, {}, [this] { topic<CameraManagement>().deleteAll(); });
}

bool JS_Mediator_WrenTableDialog::confirmDisconnect(const QVariantList& keys) {
    return call(*this, Action, __func__, {{"keys", keyText(keys)}},
                [&] { return topic<CameraManagement>().confirmDisconnect(toDocKeys(keys)); });
}

void JS_Mediator_WrenTableDialog::connect(const QVariantList& keys, bool connect, bool force) {
    if (force && isInCall()) {  // the host's own command is not lost
        afterCalls([this, keys, connect] { this->connect(keys, connect, true); });
        return;
    }
    call(*this, Change, __func__, {{"keys", keyText(keys)}, {"connect", connect}, {"force", force}}, [&] {
        const DocKeyList docKeys = toDocKeys(keys);
        const CameraAction& action = connect ? cameraaction::Connect
                                     : force ? cameraaction::ForcedDisconnect
                                             : cameraaction::Disconnect;
        watch(action, docKeys, cameraaction::flag(connect), [&] {
            topic<CameraManagement>().connect(docKeys, connect, force);
            return true;
        });
    });
}

void JS_Mediator_WrenTableDialog::select(const QVariantList& keys, bool select) {
    call(*this, Action, __func__, {{"keys", keyText(keys)}, {"select", select}}, [&] {
        if (topic<CameraManagement>().select(toDocKeys(keys), select)) {
            m_timers.waitForSelection(SelectionWait);
            activateTable();
        }
    });
}

void JS_Mediator_WrenTableDialog::setCameraName(const QVariantList& keys, const QString& cameraName) {
    edit(__func__, keys, "cameraName", cameraName, &CameraManagement::setCameraName, cameraaction::Name);
}

void JS_Mediator_WrenTableDialog::setComment(const QVariantList& keys, const QString& comment) {
    edit(__func__, keys, "comment", comment, &CameraManagement::setComment, cameraaction::Comment);
}

void JS_Mediator_WrenTableDialog::editDoc(DOCKEY dockey) {
    call(*this, Change, __func__, {{"docKey", dockey}}, [&] { topic<CameraManagement>().editDoc(dockey); });
}
