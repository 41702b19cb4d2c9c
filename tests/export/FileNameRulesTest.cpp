#include "FileNameRules.h"

#include <QString>

#include <gtest/gtest.h>

namespace {

TEST(FileNameRules, RefuseWhatFilesCannotBeCalled) {
    const struct {
        QString characters;
        bool inName;
        bool inPath;
    } cases[] = {{"*?|\t\n\"<>%", false, false}, {"/\\:", false, true}, {"a.-_ ~'&;é箱", true, true}};
    for (const auto& c : cases) {
        for (const QChar each : c.characters) {
            const QString text = QString("go%1od.rigx").arg(each);
            EXPECT_EQ(isGoodFileName(text), c.inName) << text.toStdString();
            EXPECT_EQ(isGoodPath(text), c.inPath) << text.toStdString();
        }
    }
}

}  // namespace
