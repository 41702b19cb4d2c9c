#include "JS_Mediator_WrenTableDialog.h"
#include "PLG_wren.h"
#include "TableFixture.h"

#include "camera/Camera.h"

#include <QMetaMethod>

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
        // A head that shares its device with a locked one, so that the question comes where it may.
        change(4, {{"locked", true}});
        change(2, {{"lowLight", true}});
        calls();
    }
    void TestBody() override {}

    void call(const QMetaMethod& method) {
        const QVariantList keys{1, 2, 3, 5, 6, 7, 8};
        const QString text = argumentText(method);
        const bool on = true;
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

    /// Nothing of the host is left as only a running call may have it.
    void expectAtRest(const std::string& when) {
        EXPECT_FALSE(bridge->isInCall()) << when;
        EXPECT_FALSE(host.liveLoop().isLivePaused()) << when;
        EXPECT_FALSE(host.updates().isDeterred()) << when;
        EXPECT_TRUE(bridge->isTicking()) << when;
    }

    PLG_wren plugin;
    std::unique_ptr<JS_Mediator_WrenTableDialog> bridge;

private:
    static QString argumentText(const QMetaMethod& method) {
        const QByteArray name = method.name();
        return name == "setResolution" ? "512 x 512" : name == "setTriggerMode" ? "1" : "2000";
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

/// Each camera stands as it was or as the call without a fault leaves it.
void expectNoThirdState(const States& actual, const States& before, const States& after, const std::string& when) {
    for (auto camera = actual.begin(); camera != actual.end(); ++camera) {
        EXPECT_TRUE(camera.value() == before.value(camera.key()) || camera.value() == after.value(camera.key()))
            << when << ", camera " << camera.key();
    }
}

TEST(FaultLoop, everySlotThatTakesKeysSurvivesAFaultAtAnyCall) {
    const struct {
        const char* told;
        Fault fault;
        int boxes;
    } kinds[] = {
        {"throws", {"no answer", 0, false}, 1}, {"is slow", {{}, 5000, false}, 0}, {"is gone", {{}, 0, true}, 0}};
    int cases = 0;
    const QList<QMetaMethod> methods = slotsWithKeys();
    for (const QMetaMethod& method : methods) {
        FaultyCall whole;
        const States before = whole.states();
        whole.host.faults().plantAt(-1, {});
        whole.call(method);
        const States after = whole.states();
        const int questions = whole.desk.shown.size();
        for (const auto& kind : kinds) {
            for (int n = 1;; ++n) {
                FaultyCall faulty;
                faulty.host.faults().plantAt(n, kind.fault);
                faulty.call(method);
                const std::string when =
                    method.methodSignature().toStdString() + ": call " + std::to_string(n) + ' ' + kind.told;
                if (faulty.host.faults().callCount() < n) {
                    break;
                }
                ++cases;
                faulty.expectAtRest(when);
                EXPECT_LE(faulty.desk.shown.size(), questions + kind.boxes) << when;
                expectNoThirdState(faulty.states(), before, after, when);
                if (kind.boxes == 0 && kind.fault.gone) {
                    EXPECT_EQ(faulty.desk.shown.filter("gone"), QStringList()) << when;
                }
            }
        }
    }
    std::cout << methods.size() << " slots, " << cases << " faults" << std::endl;
}

}  // namespace
