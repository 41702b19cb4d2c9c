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
    {"disconnect", [](Bridge& b) { b.connect(One, false); }, "disconnectDocs", "armed low-light plain", "", ""},
    {"disconnect by the host", [](Bridge& b) { b.connect(One, false, true); }, "disconnectDocs",
     "armed locked low-light plain", "armed locked low-light plain", "armed locked low-light plain"},
    {"select", [](Bridge& b) { b.select(One, true); }, "selectDoc", "locked low-light plain",
     "armed locked low-light plain", ""},
    {"name", [](Bridge& b) { b.setCameraName(One, "Left"); }, "setCameraName", "armed low-light plain",
     "armed locked low-light plain", ""},
    {"comment", [](Bridge& b) { b.setComment(One, "wet"); }, "setComment", "armed low-light plain",
     "armed low-light plain", ""},
    {"lock", [](Bridge& b) { b.setParamLock(One, true); }, "setParamLock", "armed locked plain", "", ""},
    {"frame rate", [](Bridge& b) { b.setFrameRate(One, "500"); }, "setRecordRate", "armed low-light plain", "", ""},
    {"shutter speed", [](Bridge& b) { b.setShutterSpeed(One, "5000"); }, "setShutterSpeed", "armed low-light plain", "",
     ""},
    {"resolution", [](Bridge& b) { b.setResolution(One, "512 x 512"); }, "setResolution", "armed low-light plain", "",
     ""},
    {"trigger mode", [](Bridge& b) { b.setTriggerMode(One, "1"); }, "setTriggerMode", "armed low-light plain", "", ""},
    {"reduce mode", [](Bridge& b) { b.setReduceMode(One, true); }, "setReduceMode", "armed low-light plain", "", ""},
    {"low light", [](Bridge& b) { b.setLowLight(One, true); }, "setLowLight", "armed low-light plain", "", ""},
    {"low light type", [](Bridge& b) { b.setLowLightType(One, true); }, "setLowLightType", "armed low-light plain", "",
     ""},
    {"live plug-in", [](Bridge& b) { b.togglePlugin(One, "lut", true); }, "setPluginEffective", "armed low-light plain",
     "armed low-light plain", ""},
    {"memory plug-in", [](Bridge& b) { b.togglePlugin(One, "mosaic", true); }, "setPluginEffective",
     "armed locked low-light plain", "armed locked low-light plain", ""},
    {"no plug-in", [](Bridge& b) { b.togglePlugin(One, "none", true); }, "setPluginEffective", "", "", ""},
};

class PermissionsTest : public BridgeFixture {
protected:
    /// The states of the camera in which the operation reaches the host, by name in one line.
    QString allowed(const Operation& operation, int mode) {
        QStringList allowed;
        for (auto state = states().begin(); state != states().end(); ++state) {
            host.appStatus().enterMode(zeb::LiveMode);
            change(
                1,
                {{"connected", true}, {"selected", false}, {"locked", false}, {"lowLight", false}, {"recordState", 0}});
            makeBridge();
            host.appStatus().enterMode(mode);
            change(1, state.value());
            calls();
            operation.call(*bridge);
            if (!calls(QStringLiteral("::%1$").arg(QLatin1String(operation.command))).isEmpty()) {
                allowed.append(state.key());
            }
        }
        return allowed.join(' ');
    }
};

TEST_F(PermissionsTest, WhatMayBeChangedWhen) {
    for (const Operation& operation : Operations) {
        EXPECT_EQ(allowed(operation, zeb::LiveMode), operation.live) << operation.told << ", live";
        EXPECT_EQ(allowed(operation, zeb::MemoryMode), operation.memory) << operation.told << ", memory";
        EXPECT_EQ(allowed(operation, zeb::FileMode), operation.file) << operation.told << ", file";
    }
}

}  // namespace
