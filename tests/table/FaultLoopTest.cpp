#include "FaultyCall.h"
#include "camera/Rig.h"

#include <QRegularExpression>
#include <QSet>

#include <random>

namespace {

QList<QMetaMethod> slotsWithKeys() {
    QList<QMetaMethod> found;
    for (const QMetaMethod& method : slotsOf(JS_Mediator_WrenTableDialog::staticMetaObject)) {
        if (method.parameterTypes().contains("QVariantList")) {
            found.append(method);
        }
    }
    return found;
}

enum Kind { Throws, IsSlow, IsGone };
const Fault Faults[] = {{"no answer", 0, false}, {{}, 5000, false}, {{}, 0, true}};

bool refuses(const FaultyCall& call) {
    return !call.desk.texts().filter(QRegularExpression("can't be changed|not supported|has no")).isEmpty();
}

/// One slot with one kind of fault at its n-th call, for n from 1 to the last; how many that were.
int tryAllCalls(const QMetaMethod& method, bool on, Kind kind) {
    FaultyCall whole;
    whole.prepare(method);
    const States before = whole.states();
    whole.call(method, on);
    const States after = whole.states();
    const bool logsOnly = method.name() == "confirmDisconnect";
    for (int n = 1;; ++n) {
        FaultyCall faulty;
        faulty.prepare(method);
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
            EXPECT_EQ(faulty.desk.texts(), whole.desk.texts());
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
    for (const QMetaMethod& method : slotsWithKeys()) {
        int cases = 0;
        for (const Kind kind : {Throws, IsSlow, IsGone}) {
            for (const bool on : {true, false}) {
                cases += tryAllCalls(method, on, kind);
            }
        }
        EXPECT_GT(cases, 0) << method.methodSignature().toStdString();
    }
}

/// A change of many cameras. Some vanish in the middle of it, at a question of that name or at the command. `member`
/// shows whether a change came through.
struct Bulk {
    const char* command;
    const char* question;
    std::function<void(JS_Mediator_WrenTableDialog&, const QVariantList&)> call;
    const char* member;
    QVariant value;
};

/// Makes the change of 256 cameras, of which `vanishing` go in its midst, and looks at the others.
void expectOneCommandEach(const Bulk& bulk, const QSet<DOCKEY>& vanishing, std::mt19937& random) {
    constexpr int Cameras = 256;
    FaultyCall call;
    call.host.setRig(Rig::standard(Cameras));
    call.connectAll();
    QVariantList keys;
    for (DOCKEY key = 1; key <= Cameras; ++key) {
        keys.append(QString::number(key));
        if (vanishing.contains(key)) {
            call.host.faults().plant(key, random() % 2 == 0 ? bulk.question : bulk.command, {{}, 0, true});
        }
    }
    const quint64 mark = call.host.journal().count();
    bulk.call(*call.bridge, keys);
    QVariantList told;
    for (const QVariant& entry : call.host.journal().since(mark)) {
        if (entry.toMap()["call"].toString().endsWith(QStringLiteral("::") + bulk.command)) {
            const QVariant asked = entry.toMap()["args"].toList().first();
            told += asked.type() == QVariant::List ? asked.toList() : QVariantList{asked};
        }
    }
    const auto left = call.host.cameras().all();
    EXPECT_EQ(left.size(), std::size_t(Cameras - vanishing.size()));
    for (const Camera* camera : left) {
        EXPECT_EQ(told.count(camera->key()), 1) << "camera " << camera->key();
        EXPECT_EQ(camera->state().toPlain().value(bulk.member), bulk.value) << "camera " << camera->key();
    }
    EXPECT_EQ(call.desk.texts(), QStringList()) << "nobody is told of a camera that is gone";
}

TEST(FaultLoop, theOthersGetOneCommandEachWhenManyVanish) {
    using Bridge = JS_Mediator_WrenTableDialog;
    using Keys = QVariantList;
    const Bulk bulks[] = {
        {"setRecordRate", "isParamLocked", [](Bridge& b, const Keys& k) { b.setFrameRate(k, "2000"); }, "rate", 2000},
        {"setShutterSpeed", "isParamLocked", [](Bridge& b, const Keys& k) { b.setShutterSpeed(k, "5000"); }, "shutter",
         5000},
        {"setTriggerMode", "isParamLocked", [](Bridge& b, const Keys& k) { b.setTriggerMode(k, "2"); }, "triggerMode",
         2},
        {"setReduceMode", "isParamLocked", [](Bridge& b, const Keys& k) { b.setReduceMode(k, true); }, "reduce", true},
        {"setLowLight", "isParamLocked", [](Bridge& b, const Keys&) { b.setLowLight({}, true); }, "lowLight", true},
        {"setComment", "isParamLocked", [](Bridge& b, const Keys& k) { b.setComment(k, "wet"); }, "comment", "wet"},
        {"setParamLock", "isLowLightMode", [](Bridge& b, const Keys& k) { b.setParamLock(k, true); }, "locked", true},
        {"disconnectDocs", "isParamLocked", [](Bridge& b, const Keys& k) { b.connect(k, false); }, "connected", false},
    };
    for (unsigned int seed = 1; seed <= 10; ++seed) {
        std::mt19937 random(seed);
        for (const Bulk& bulk : bulks) {
            SCOPED_TRACE(testing::Message() << bulk.command << ", seed " << seed);
            QSet<DOCKEY> vanishing;
            while (vanishing.size() < 26) {
                vanishing.insert(1 + random() % 256);
            }
            expectOneCommandEach(bulk, vanishing, random);
        }
    }
}

}  // namespace
