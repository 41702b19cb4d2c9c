#include "JS_Mediator_WrenTableDialog.h"
#include "PLG_wren.h"
#include "TableFixture.h"

namespace {

using Bridge = JS_Mediator_WrenTableDialog;

/// One operation on one camera: what it asks of the host, and in which state of the camera, mode by mode.
struct Operation {
    const char* told;
    std::function<void(Bridge&)> call;
    const char* command;
    QString live;
    QString memory;
    QString file;
};

const QMap<QString, QVariantMap>& states() {
    static const QMap<QString, QVariantMap> states{{"plain", {}},
                                                   {"disconnected", {{"connected", false}}},
                                                   {"locked", {{"locked", true}}},
                                                   {"low-light", {{"lowLight", true}}},
                                                   {"armed", {{"recordState", 2}}}};
    return states;
}

const QVariantList One{1};

const Operation Operations[] = {
    {"connect", [](Bridge& b) { b.connect(One, true); }, "connectDocs", "disconnected", "", ""},
    {"connect by the host", [](Bridge& b) { b.connect(One, true, true); }, "connectDocs", "disconnected",
     "disconnected", "disconnected"},
    {"disconnect", [](Bridge& b) { b.connect(One, false); }, "disconnectDocs", "plain low-light armed", "", ""},
    {"disconnect by the host", [](Bridge& b) { b.connect(One, false, true); }, "disconnectDocs",
     "plain locked low-light armed", "plain locked low-light armed", "plain locked low-light armed"},
    {"select", [](Bridge& b) { b.select(One, true); }, "selectDoc", "plain locked low-light",
     "plain locked low-light armed", ""},
    {"name", [](Bridge& b) { b.setCameraName(One, "Left"); }, "setCameraName", "plain low-light armed",
     "plain locked low-light armed", ""},
    {"comment", [](Bridge& b) { b.setComment(One, "wet"); }, "setComment", "plain low-light armed",
     "plain low-light armed", ""},
    {"lock", [](Bridge& b) { b.setParamLock(One, true); }, "setParamLock", "plain locked armed", "", ""},
    {"frame rate", [](Bridge& b) { b.setFrameRate(One, "500"); }, "setRecordRate", "plain low-light armed", "", ""},
    {"shutter speed", [](Bridge& b) { b.setShutterSpeed(One, "5000"); }, "setShutterSpeed", "plain low-light armed", "",
     ""},
    {"resolution", [](Bridge& b) { b.setResolution(One, "512 x 512"); }, "setResolution", "plain low-light armed", "",
     ""},
    {"trigger mode", [](Bridge& b) { b.setTriggerMode(One, "1"); }, "setTriggerMode", "plain low-light armed", "", ""},
    {"reduce mode", [](Bridge& b) { b.setReduceMode(One, true); }, "setReduceMode", "plain low-light armed", "", ""},
    {"low light", [](Bridge& b) { b.setLowLight(One, true); }, "setLowLight", "plain low-light armed", "", ""},
    {"low light type", [](Bridge& b) { b.setLowLightType(One, true); }, "setLowLightType", "plain low-light armed", "",
     ""},
};

class PermissionsTest : public TableFixture {
protected:
    PermissionsTest() { plugin.setHost(&host); }

    /// The states of the camera in which the operation reaches the host, in one line.
    QString allowed(const Operation& operation, int mode) {
        QStringList allowed;
        for (auto state = states().begin(); state != states().end(); ++state) {
            host.appStatus().enterMode(zeb::LiveMode);
            change(
                1,
                {{"connected", true}, {"selected", false}, {"locked", false}, {"lowLight", false}, {"recordState", 0}});
            Bridge bridge(&host, "wrentabledialog", &plugin);
            host.appStatus().enterMode(mode);
            change(1, state.value());
            calls();
            operation.call(bridge);
            const QString command = QStringLiteral("::%1 ").arg(QLatin1String(operation.command));
            if (!calls().filter(command).isEmpty()) {
                allowed.append(state.key());
            }
        }
        return allowed.join(' ');
    }

    static QString sorted(const QString& words) {
        QStringList list = words.split(' ', Qt::SkipEmptyParts);
        list.sort();
        return list.join(' ');
    }

    PLG_wren plugin;
};

TEST_F(PermissionsTest, whatMayBeChangedWhen) {
    for (const Operation& operation : Operations) {
        EXPECT_EQ(allowed(operation, zeb::LiveMode), sorted(operation.live)) << operation.told << ", live";
        EXPECT_EQ(allowed(operation, zeb::MemoryMode), sorted(operation.memory)) << operation.told << ", memory";
        EXPECT_EQ(allowed(operation, zeb::FileMode), sorted(operation.file)) << operation.told << ", file";
    }
}

}  // namespace
