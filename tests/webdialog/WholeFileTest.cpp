#include "Files.h"
#include "FullDisk.h"
#include "WholeFile.h"

#include <QDir>
#include <QTemporaryDir>

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

}  // namespace
