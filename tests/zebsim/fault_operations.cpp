#include "Files.h"
#include "Operation.h"
#include "StatusFlags.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

/// The calls that the boundary declares.
QSet<QString> declared() {
    QSet<QString> names;
    const QDir boundary(SOURCE_FOLDER "/hostapi");
    for (const QString& header : boundary.entryList({"*.h"})) {
        const QString text = QString::fromUtf8(contentOf(boundary.filePath(header)));
        for (auto call = QRegularExpression("\\b(\\w+)\\(").globalMatch(text); call.hasNext();) {
            names << call.next().captured(1);
        }
    }
    return names;
}

TEST(FaultOperations, AreKnownBeforeTheyRunAndStandInTheManual) {
    EXPECT_TRUE(CameraOperation::names().contains("readFrame"));
    EXPECT_TRUE(HubOperation::names().contains("search"));
    EXPECT_TRUE(HostOperation::names().contains("setPage"));
    EXPECT_FALSE(HostOperation::names().contains("updateUI")) << "a change that can't fail";
    const QString manual = QString::fromUtf8(contentOf(SOURCE_FOLDER "/docs/scenarios.md"));
    const QSet<QString> operations = CameraOperation::names() + HubOperation::names() + HostOperation::names();
    for (const QString& name : (operations - declared()).values() + StatusFlags().names()) {
        EXPECT_TRUE(manual.contains(QRegularExpression("\\b" + name + "\\b"))) << name.toStdString();
    }
    const QString faults = manual.section("\n## Faults\n", 1).section("\n## ", 0, 0);
    for (auto named = QRegularExpression("`(\\w+)`").globalMatch(faults); named.hasNext();) {
        const QString name = named.next().captured(1);
        EXPECT_TRUE(operations.contains(name)) << name.toStdString() << " can't fail";
    }
}

}  // namespace
