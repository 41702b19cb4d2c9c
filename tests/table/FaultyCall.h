#pragma once

#include "JS_Mediator_WrenTableDialog.h"
#include "PLG_wren.h"
#include "SlotCall.h"
#include "TableFixture.h"
#include "camera/Camera.h"

#include <QMap>
#include <QMetaMethod>

#include <memory>

/// What each camera is set to, by its key; a camera that is gone has no entry.
using States = QMap<DOCKEY, QVariantMap>;

/// A bridge on a host of its own, for one call with a fault somewhere in it.
class FaultyCall : public TableFixture {
public:
    using TableFixture::connectAll;
    using TableFixture::desk;
    using TableFixture::host;

    FaultyCall() {
        connectAll();
        plugin.setHost(&host);
        bridge = std::make_unique<JS_Mediator_WrenTableDialog>(&host, "wrentabledialog", &plugin);
        // The last of the keys shares its device with a locked head, so that the question comes where it may.
        change(4, {{"locked", true}});
        change(2, {{"lowLight", true}});
        change(5, {{"connected", false}});
        host.setPrefBool("wren/settings/triggerEnable", true);
    }
    void TestBody() override {}

    /// Brings the host into the mode that the slot is for.
    void prepare(const QMetaMethod& method) {
        if (!isOfMemory(method)) {
            return;
        }
        for (const Camera* camera : host.cameras().all()) {
            change(camera->key(), {{"selected", true},
                                   {"recorded", true},
                                   {"recordedRange", QVariantList{0, 999}},
                                   {"recordedTrigger", 500},
                                   {"selectedRange", QVariantList{100, 900}}});
        }
        host.appStatus().enterMode(zeb::MemoryMode);
    }

    static DocKeyList keys() { return {1, 2, 5, 6, 7, 3}; }

    /// All flags of the slot are `on`.
    void call(const QMetaMethod& method, bool on) {
        QVariantList keys;
        for (const DOCKEY key : FaultyCall::keys()) {
            keys.append(key);
        }
        EXPECT_NO_THROW(callSlot(*bridge, method,
                                 {{QMetaType::QVariantList, keys},
                                  {QMetaType::QString, argumentText(method)},
                                  {QMetaType::Bool, on},
                                  {QMetaType::Int, on ? 50 : -50}}));
    }

    States states() {
        States states;
        for (const Camera* camera : host.cameras().all()) {
            QVariantMap state = camera->state().toPlain();
            state.remove("triggerOffsetEnabled");  // it and the offset are set one after the other
            states.insert(camera->key(), state);
        }
        return states;
    }

    int errorBoxes() { return desk.texts().filter("no answer").size(); }

    /// Nothing of the host is left as only a running call may have it.
    void expectAtRest() {
        EXPECT_FALSE(bridge->isInCall());
        EXPECT_FALSE(host.liveLoop().isLivePaused());
        EXPECT_FALSE(host.updates().isDeterred());
        EXPECT_TRUE(bridge->isTicking());
    }

    PLG_wren plugin;
    std::unique_ptr<JS_Mediator_WrenTableDialog> bridge;

private:
    static bool isOfMemory(const QMetaMethod& method) {
        return QList<QByteArray>{"setRecordCheck", "setSelectStartFrameNo", "setSelectEndFrameNo", "setTriggerOffset"}
            .contains(method.name());
    }
    static QString argumentText(const QMetaMethod& method) {
        const QByteArray name = method.name();
        return name == "setResolution" ? "512 x 512" : name == "setTriggerMode" ? "3" : "2000";
    }
};
