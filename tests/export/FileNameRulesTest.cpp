#include "FileNameRules.h"

#include "Course.h"

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

TEST(FileNameRules, MakeANameOfAnyText) {
    const struct {
        QString text;
        QString replacement;
        QString name;
    } cases[] = {
        {"a\\/:*?\"<>|%\t\nb", "_", "a____________b"},
        {"a:b", "", "ab"},
        {"箱 [1].x", "_", "箱 [1].x"},
        {".", "_", "_"},
        {"..", "_", "__"},
        {"..", "", ""},
        {"<.>", "", ""},
        {"...", "_", "..."},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(sanitised(c.text, c.replacement), c.name);
    }
}

}  // namespace
