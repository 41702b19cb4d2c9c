#include "camera/CameraOperations.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

TEST(CameraOperations, NameEveryOperationThatCanFail) {
    static const QRegularExpression begin(QStringLiteral(
        R"re(\b(?:command|commandConnected|ask\w*)\("(\w+)")re"));
    QSet<QString> inSources;
    for (const char* room : {"camera", "host", "recording", "saving"}) {
        QDirIterator files(QStringLiteral(SOURCE_FOLDER "/zebsim/") + room, {"*.cpp"}, QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            const QString text = QString::fromUtf8(file.readAll());
            for (auto found = begin.globalMatch(text); found.hasNext();) inSources << found.next().captured(1);
        }
    }
    EXPECT_TRUE(inSources.contains("setRecordRate"));
    for (const QString& name : inSources - cameraOperations()) ADD_FAILURE() << name.toStdString() << " is missing";
    for (const QString& name : cameraOperations() - inSources) ADD_FAILURE() << name.toStdString() << " is nowhere";
}

}  // namespace
