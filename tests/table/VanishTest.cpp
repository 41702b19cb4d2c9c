#include "JS_Mediator_WrenTableDialog.h"
#include "PLG_wren.h"
#include "TableFixture.h"
#include "camera/Camera.h"
#include "camera/Rig.h"

#include <random>

namespace {

constexpr int Cameras = 256;
constexpr int Vanishing = Cameras / 10;

using Bridge = JS_Mediator_WrenTableDialog;

/// A change of all cameras, the question on the way to it at which a camera may vanish, too, and the member that
/// shows whether it came through.
struct Bulk {
    const char* command;
    const char* question;
    std::function<void(Bridge&, const QVariantList&)> call;
    const char* member;
    QVariant value;
};

const Bulk Bulks[] = {
    {"setRecordRate", "isParamLocked", [](Bridge& b, const QVariantList& k) { b.setFrameRate(k, "2000"); }, "rate",
     2000},
    {"setShutterSpeed", "isParamLocked", [](Bridge& b, const QVariantList& k) { b.setShutterSpeed(k, "5000"); },
     "shutter", 5000},
    {"setTriggerMode", "isParamLocked", [](Bridge& b, const QVariantList& k) { b.setTriggerMode(k, "2"); },
     "triggerMode", 2},
    {"setReduceMode", "isParamLocked", [](Bridge& b, const QVariantList& k) { b.setReduceMode(k, true); }, "reduce",
     true},
    {"setLowLight", "isParamLocked", [](Bridge& b, const QVariantList&) { b.setLowLight({}, true); }, "lowLight", true},
    {"setComment", "isParamLocked", [](Bridge& b, const QVariantList& k) { b.setComment(k, "wet"); }, "comment", "wet"},
    {"setParamLock", "isLowLightMode", [](Bridge& b, const QVariantList& k) { b.setParamLock(k, true); }, "locked",
     true},
    {"disconnectDocs", "isParamLocked", [](Bridge& b, const QVariantList& k) { b.connect(k, false); }, "connected",
     false},
};

/// How often each key stands in the calls of a command.
QMap<DOCKEY, int> keysOf(const QVariantList& calls, const QString& command) {
    QMap<DOCKEY, int> counts;
    for (const QVariant& entry : calls) {
        const QVariantMap call = entry.toMap();
        if (!call.value("call").toString().endsWith(QStringLiteral("::") % command)) {
            continue;
        }
        const QVariant keys = call.value("args").toList().first();
        for (const QVariant& key : keys.type() == QVariant::List ? keys.toList() : QVariantList{keys}) {
            ++counts[key.toUInt()];
        }
    }
    return counts;
}

class VanishTest : public TableFixture, public testing::WithParamInterface<int> {
protected:
    VanishTest() { plugin.setHost(&host); }

    PLG_wren plugin;
};

TEST_P(VanishTest, theOthersGetOneCommandEach) {
    std::mt19937 random(static_cast<unsigned int>(GetParam()));
    for (const Bulk& bulk : Bulks) {
        host.setRig(Rig::standard(Cameras));
        connectAll();
        Bridge bridge(&host, "wrentabledialog", &plugin);
        QVariantList keys;
        for (const DOCKEY key : host.docManager().getDocKeys()) {
            keys.append(QString::number(key));
        }
        for (int i = 0; i < Vanishing; ++i) {
            const DOCKEY key = 1 + random() % Cameras;
            host.faults().plant(key, random() % 2 == 0 ? bulk.question : bulk.command, {{}, 0, true});
        }
        const quint64 mark = host.journal().count();
        bulk.call(bridge, keys);
        const QMap<DOCKEY, int> counts = keysOf(host.journal().since(mark), bulk.command);
        const auto left = host.cameras().all();
        EXPECT_LT(left.size(), std::size_t(Cameras)) << bulk.command;
        for (const Camera* camera : left) {
            EXPECT_EQ(counts.value(camera->key()), 1) << bulk.command << ", camera " << camera->key();
            EXPECT_EQ(camera->state().toPlain().value(bulk.member), bulk.value)
                << bulk.command << ", camera " << camera->key();
        }
        EXPECT_EQ(desk.shown, QStringList()) << "nobody is told of a camera that is gone";
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, VanishTest, testing::Range(1, 11));

}  // namespace
