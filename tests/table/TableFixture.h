#pragma once

#include "Course.h"
#include "host/SimHost.h"
#include "recording/SteppedClock.h"
#include "support/ScriptedDesk.h"

#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

/// The host with the rig of eight cameras, nothing connected.
class TableFixture : public testing::Test {
protected:
    TableFixture();

    void connectAll();
    /// Changes a camera behind the table's back.
    void change(DOCKEY key, const QVariantMap& members);
    QVariant stateOf(DOCKEY key, const char* member);
    /// What the plug-in has asked the host to change since the last asking, as `ZebDocManager::selectDoc [3]`.
    /// Requests for an update are left out.
    QStringList calls();
    static QString text(const QVariant& value);

    SteppedClock clock;
    ScriptedDesk desk;
    QTemporaryDir folder;
    SimHost host{clock, desk, folder.filePath(QStringLiteral("prefs.ini"))};

private:
    quint64 m_mark = 0;
};

/// Compares two JSON texts by what they say and prints the lines that differ.
void expectJson(const QString& actual, const QString& expected);
