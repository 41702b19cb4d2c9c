#include "Files.h"
#include "FullDisk.h"
#include "Unprivileged.h"
#include "WholeFile.h"

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <gtest/gtest.h>

namespace {

TEST(WholeFile, IsTheNewOneOrTheOldOneWithTheReason) {
    struct Case {
        const char* what;
        int size;
        rlim_t disk;
        bool isWritten;
    };
    for (const Case& c :
         {Case{"nothing at all", 0, RLIM_INFINITY, true}, Case{"much", 200'000, RLIM_INFINITY, true},
          Case{"as much as there is", 5'000, 5'000, true}, Case{"less than is written at once", 5'000, 4'096, false},
          Case{"more than is written at once", 200'000, 100'000, false}}) {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("picture.png"));
        ASSERT_EQ(writeWholeFile(path, "old"), QString());
        const QByteArray bytes(c.size, 'x');
        QString reason;
        {
            const FullDisk disk(c.disk);
            reason = writeWholeFile(path, bytes);
        }
        EXPECT_EQ(reason.isEmpty(), c.isWritten) << c.what << ": " << reason.toStdString();
        EXPECT_EQ(contentOf(path), c.isWritten ? bytes : QByteArray("old")) << c.what;
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1) << c.what;
    }
    EXPECT_NE(writeWholeFile(QStringLiteral("/no/such/folder/picture.png"), "new"), QString());
}

/// A folder with what a user may point at. Root makes it, the test has no more rights than others.
class WholeFilePlaces : public testing::Test {
protected:
    WholeFilePlaces() {
        chmod(folder.path().toLocal8Bit().constData(), 0777);
        QDir(folder.path()).mkdir("closed");
        for (const QString& name : {QString("closed/open"), QString("readonly"), QString("target"), longName}) {
            write(folder.filePath(name), "old");
            chmod(folder.filePath(name).toLocal8Bit().constData(), name == "readonly" ? 0444 : 0666);
        }
        QFile::link(folder.filePath("target"), folder.filePath("link"));
        QFile::link(folder.filePath("new"), folder.filePath("hanging"));
        mkfifo(folder.filePath("pipe").toLocal8Bit().constData(), 0666);
        chmod(folder.filePath("closed").toLocal8Bit().constData(), 0555);
    }
    ~WholeFilePlaces() override { chmod(folder.filePath("closed").toLocal8Bit().constData(), 0777); }

    const QString longName = QString(255, 'n');
    const QTemporaryDir folder;
};

TEST_F(WholeFilePlaces, AreWrittenOrTellWhyNot) {
    const QString denied = "Permission denied";
    const struct {
        const char* sentence;
        QString name;
        QString reason;
        bool isOpened;
        QString holds;
    } cases[] = {
        {"a folder that takes no new file, and one that is there", "closed/open", "", true, "closed/open"},
        {"a new one there", "closed/new", denied, false, ""},
        {"a file that must not be written", "readonly", denied, false, ""},
        {"a link", "link", "", true, "target"},
        {"a link to nothing yet", "hanging", "", true, "new"},
        {"the longest name", longName, "", true, longName},
        {"a new one as long", QString(255, 'm'), "", true, QString(255, 'm')},
        {"a longer one", longName + "n", "File name too long", false, ""},
        {"a folder", "closed", "Is a directory", false, ""},
        {"a pipe", "pipe", "it is not a regular file", false, ""},
        {"no folder", "gone/a", "No such file or directory", false, ""},
    };
    const auto names = [this] { return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System); };
    const QByteArray more(9'000, 'x');
    for (const auto& each : cases) {
        bool isOpened = false;
        QString reason;
        const auto put = [&] {
            const Unprivileged user;
            return writeWholeFile(folder.filePath(each.name), more, &isOpened);
        };
        if (!each.holds.isEmpty()) {
            const FullDisk disk(5'000);
            EXPECT_EQ(put(), "only a part of it could be written; the disk may be full") << each.sentence;
            EXPECT_TRUE(isOpened) << each.sentence;
        }
        if (QStringList{"closed/open", "target", longName}.contains(each.holds)) {
            EXPECT_EQ(contentOf(folder.filePath(each.holds)), "old") << each.sentence;
        }
        EXPECT_EQ(put(), each.reason) << each.sentence;
        EXPECT_EQ(isOpened, each.isOpened) << each.sentence;
        if (!each.holds.isEmpty()) {
            EXPECT_EQ(contentOf(folder.filePath(each.holds)), more) << each.sentence;
        }
    }
    EXPECT_TRUE(QFileInfo(folder.filePath("link")).isSymLink());
    EXPECT_EQ(contentOf(folder.filePath("readonly")), "old");
    EXPECT_EQ(names().size(), 2 + 9) << names().join(' ').toStdString();
    const Unprivileged user;
    EXPECT_EQ(writeWholeFile(folder.filePath("closed/open"), "less"), "");
    EXPECT_EQ(contentOf(folder.filePath("closed/open")), "less");
}

}  // namespace
