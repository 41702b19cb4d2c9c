#pragma once

#include "Course.h"
#include "support/TestHost.h"

#include <QWidget>

#include <gtest/gtest.h>

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
};

/// Compares two JSON texts by what they say and prints the lines that differ.
void expectJson(const QString& actual, const QString& expected);
