#include "CameraNameList.h"

#include "Course.h"
#include "Files.h"
#include "Unprivileged.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

/// "category: name|name" of each.
QString textOf(const std::optional<CameraNames>& list) {
    QStringList categories;
    for (const QString& category : list ? list->keys() : QStringList("none")) {
        categories += category + ": " + (list ? list->value(category).join('|') : "");
    }
    return categories.join("; ");
}

class CameraNameList : public testing::Test {
protected:
    std::optional<CameraNames> read(const QByteArray& bytes) {
        write(path, bytes);
        return readCameraNames(path);
    }

    QTemporaryDir folder;
    const QString path = folder.filePath("list.csv");
    Course course;
};

TEST_F(CameraNameList, IsReadInItsOrder) {
    const struct {
        const char* what;
        QByteArray bytes;
        QString list;
        int warnings;
    } cases[] = {
        {"categories with their names", "b,2,1\na,4", "a: 4; b: 2|1", 0},
        {"one category on several lines", " a ,1\nb,2\na, 3 ,", "a: 1|3; b: 2", 0},
        {"names without a category", ",1\n  ,2\n", "?default?: 1|2", 0},
        {"a category without names", "a,\nb,?*,..", "a: ; b: ", 0},
        {"lines without a comma", "a\n\nb,1\n", "b: 1", 2},
        {"nothing", "", "", 0},
        {"any end of a line", "a,1\rb,2\r\nc,3\n\rd,4", "a: 1; b: 2; c: 3; d: 4", 1},
        {"no quotes, no markup", "\"a,<b>x</b>,1\"", "\"a: bxb|1", 0},
        {"Shift-JIS with a backslash for a second letter", "\x95\x5c,\x83\x5c\x81\x5b,\x94\x5c", "表: ソー|能", 0},
        {"Shift-JIS with half-width kana", "\xb1,\xb2\xb3", "ｱ: ｲｳ", 0},
        {"UTF-8", "前,表,ソー", "前: 表|ソー", 0},
        {"UTF-8 with a mark",
         "\xef\xbb\xbf"
         "a,\xc3\xa9",
         "a: é", 0},
        {"UTF-16 with a mark",
         QByteArray("\xff\xfe"
                    "a\0,\0\x68\x88",
                    8),
         "a: 表", 0},
    };
    for (const auto& c : cases) {
        course.take();
        EXPECT_EQ(textOf(read(c.bytes)), c.list) << c.what;
        EXPECT_EQ(course.take().filter("[only category]").size(), c.warnings) << c.what;
    }
}

TEST_F(CameraNameList, IsReadAtAnyLength) {
    const QByteArray name(1024, 'x');
    const auto many = read("a," + QByteArray(name + ',').repeated(10 * 1024) + "last");
    ASSERT_TRUE(many);
    EXPECT_EQ(many->value("a").last(), "last");
    const auto longest = read("a," + QByteArray(1023, 'x') + "\xf0\x9f\x93\xb7," + QByteArray(2000, 'y'));
    ASSERT_TRUE(longest);
    EXPECT_EQ(longest->value("a").join('|'), QString(1023, 'x') + '|' + QString(1024, 'y'));
    course.take();
    EXPECT_TRUE(read(QByteArray(1000, '\n')));
    EXPECT_EQ(course.take().size(), 101) << "a wrong file does not fill the log";
}

TEST_F(CameraNameList, IsNoneWhereNothingCanBeRead) {
    EXPECT_FALSE(readCameraNames(path));
    EXPECT_EQ(course.take(), QStringList());
    EXPECT_FALSE(readCameraNames(folder.path()));
    EXPECT_EQ(course.take(), QStringList("critical: \"file open failed. [" + folder.path() + "]\""));
    write(path, "a,1");
    QFile::setPermissions(path, {});
    {
        const Unprivileged user;
        EXPECT_FALSE(readCameraNames(path));
    }
    EXPECT_EQ(course.take().size(), 1);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    QFile(path).resize(100LL * 1024 * 1024);
    EXPECT_FALSE(readCameraNames(path));
    EXPECT_EQ(course.take(), QStringList({"critical: A list of camera names can't be read: it is larger than 64 MiB",
                                          "critical: \"file error occurred. [" + path + "]\""}));
}

}  // namespace
