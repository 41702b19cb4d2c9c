#include "JS_Mediator_WrenTableDialog.h"
#include "PLG_wren.h"
#include "TableFixture.h"
#include "camera/Camera.h"

#include <QMetaMethod>
#include <QRegularExpression>

#include <iostream>

namespace {

/// What each camera is set to, by its key; a camera that is gone has no entry.
using States = QMap<DOCKEY, QVariantMap>;

/// One call of a slot that takes keys, on a host of its own, with a fault somewhere in it.
class FaultyCall : public TableFixture {
public:
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

    static DocKeyList keys() { return {1, 2, 5, 6, 7, 3}; }

    /// All flags of the slot are `on`.
    void call(const QMetaMethod& method, bool on) {
        QVariantList keys;
        for (const DOCKEY key : FaultyCall::keys()) {
            keys.append(key);
        }
        const QString text = argumentText(method);
        void* arguments[10] = {};
        QVariant result(method.returnType() == QMetaType::Void ? QVariant() : QVariant(method.returnType(), nullptr));
        arguments[0] = result.data();
        for (int i = 0; i < method.parameterCount(); ++i) {
            const int type = method.parameterType(i);
            ASSERT_TRUE(type == QMetaType::QVariantList || type == QMetaType::QString || type == QMetaType::Bool)
                << method.methodSignature().toStdString();
            arguments[i + 1] = const_cast<void*>(type == QMetaType::QVariantList ? static_cast<const void*>(&keys)
                                                 : type == QMetaType::QString    ? static_cast<const void*>(&text)
                                                                                 : static_cast<const void*>(&on));
        }
        EXPECT_NO_THROW(
            QMetaObject::metacall(bridge.get(), QMetaObject::InvokeMetaMethod, method.methodIndex(), arguments));
    }

    States states() {
        States states;
        for (const Camera* camera : host.cameras().all()) {
            states.insert(camera->key(), camera->state().toPlain());
        }
        return states;
    }

    int errorBoxes() { return desk.shown.filter("no answer").size(); }

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
    static QString argumentText(const QMetaMethod& method) {
        const QByteArray name = method.name();
        return name == "setResolution" ? "512 x 512" : name == "setTriggerMode" ? "3" : "2000";
    }
};

QList<QMetaMethod> slotsWithKeys() {
    const QMetaObject& meta = JS_Mediator_WrenTableDialog::staticMetaObject;
    QList<QMetaMethod> found;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() == QMetaMethod::Slot && method.parameterTypes().contains("QVariantList")) {
            found.append(method);
        }
    }
    return found;
}

enum Kind { Throws, IsSlow, IsGone };
const Fault Faults[] = {{"no answer", 0, false}, {{}, 5000, false}, {{}, 0, true}};

bool refuses(const FaultyCall& call) {
    return !call.desk.shown.filter(QRegularExpression("can't be changed|not supported|has no")).isEmpty();
}

/// One slot with one kind of fault at its n-th call, for n from 1 to the last; how many that were.
int tryAllCalls(const QMetaMethod& method, bool on, Kind kind) {
    FaultyCall whole;
    const States before = whole.states();
    whole.call(method, on);
    const States after = whole.states();
    const bool logsOnly = method.name() == "confirmDisconnect";
    for (int n = 1;; ++n) {
        FaultyCall faulty;
        faulty.host.faults().plantAt(n, Faults[kind]);
        faulty.call(method, on);
        if (faulty.host.faults().callCount() < n) {
            return n - 1;
        }
        SCOPED_TRACE(method.methodSignature().toStdString() + (on ? " on" : " off") + ", call " + std::to_string(n));
        faulty.expectAtRest();
        const States states = faulty.states();
        if (kind == IsSlow) {
            EXPECT_EQ(states, after);
            EXPECT_EQ(faulty.desk.shown, whole.desk.shown);
        }
        // Where a camera refuses anyhow, its refusal may be the one that is shown.
        EXPECT_TRUE(faulty.errorBoxes() == (kind == Throws && !logsOnly ? 1 : 0) || refuses(whole));
        for (const DOCKEY key : FaultyCall::keys()) {
            if (kind == IsGone && states.contains(key)) {
                EXPECT_EQ(states.value(key), after.value(key)) << "camera " << key << " is there and has its value";
            } else if (kind == Throws) {
                EXPECT_TRUE(states.value(key) == before.value(key) || states.value(key) == after.value(key))
                    << "camera " << key << " stands as it was or as it was to be";
            }
        }
    }
}

TEST(FaultLoop, everySlotThatTakesKeysSurvivesAFaultAtAnyCall) {
    int cases = 0;
    const QList<QMetaMethod> methods = slotsWithKeys();
    for (const QMetaMethod& method : methods) {
        const int first = cases;
        for (const Kind kind : {Throws, IsSlow, IsGone}) {
            for (const bool on : {true, false}) {
                cases += tryAllCalls(method, on, kind);
            }
        }
        EXPECT_GT(cases, first) << method.methodSignature().toStdString();
    }
    std::cout << methods.size() << " slots, " << cases << " faults" << std::endl;
}

}  // namespace
