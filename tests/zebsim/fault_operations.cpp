#include "Operation.h"
#include "StatusFlags.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

TEST(FaultOperations, AreKnownBeforeTheyRunAndStandInTheManual) {
    EXPECT_TRUE(CameraOperation::names().contains("readFrame"));
    EXPECT_TRUE(HubOperation::names().contains("search"));
    EXPECT_TRUE(HostOperation::names().contains("setPage"));
    EXPECT_FALSE(HostOperation::names().contains("updateUI")) << "a change that can't fail";
    QFile file(QStringLiteral(SOURCE_FOLDER "/docs/scenarios.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString manual = QString::fromUtf8(file.readAll());
    const QSet<QString> operations = CameraOperation::names() + HubOperation::names() + HostOperation::names();
    for (const QString& name : operations.values() + StatusFlags().names()) {
        EXPECT_TRUE(manual.contains(QRegularExpression("\\b" + name + "\\b"))) << name.toStdString();
    }
}

}  // namespace
