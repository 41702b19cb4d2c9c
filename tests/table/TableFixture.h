#pragma once

#include "Course.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "PLG_wren.h"
#include "support/TestHost.h"

#include <QWidget>

#include <gtest/gtest.h>

#include <memory>

/// The host with the rig of eight cameras, nothing connected.
class TableFixture : public testing::Test, public TestHost {
protected:
    TableFixture();

    void connectAll();
    /// Changes a camera behind the table's back.
    void change(DOCKEY key, const QVariantMap& members) { camera(key).change(members); }
    QVariant stateOf(DOCKEY key, const char* member) {
        return camera(key).state().toPlain().value(QLatin1String(member));
    }

    PLG_wren plugin;
};

/// With the table's bridge, which a test makes when the host stands as it is to find it.
class BridgeFixture : public TableFixture {
protected:
    void makeBridge() {
        bridge.reset();  // ends its session before the next one begins
        bridge = std::make_unique<JS_Mediator_WrenTableDialog>(&host, QStringLiteral("wrentabledialog"), &plugin);
    }

    std::unique_ptr<JS_Mediator_WrenTableDialog> bridge;
};

/// Compares two JSON texts by what they say and prints the lines that differ.
void expectJson(const QString& actual, const QString& expected);
