#pragma once

#include "host/MessageDesk.h"
#include "host/SimHost.h"
#include "recording/SteppedClock.h"

#include <QStringList>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

/// How a failed comparison shows a text.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << text.toStdString();
}

/// A user who answers message boxes as the test has laid down, "yes" where it has not.
class ScriptedDesk : public MessageDesk {
public:
    Answer show(const Message& message) override;

    QList<bool> answers;
    QStringList shown;
    /// Runs while the next box stands.
    std::function<void()> whileStanding;
};

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
