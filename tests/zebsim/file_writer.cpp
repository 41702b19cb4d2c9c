#include "FileError.h"
#include "FileWriter.h"
#include "Files.h"
#include "FullDisk.h"
#include "support/TestHost.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <sys/file.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// The file system has neither locks nor links to what is open.
bool isPoor = false;

}  // namespace

// They stand before those of the system.

extern "C" int flock(int file, int operation) noexcept {
    errno = ENOLCK;
    return isPoor ? -1 : int(::syscall(SYS_flock, file, operation));
}

extern "C" int linkat(int from, const char* path, int to, const char* name, int flags) noexcept {
    errno = EOPNOTSUPP;
    return isPoor ? -1 : int(::syscall(SYS_linkat, from, path, to, name, flags));
}

namespace {

QStringList allIn(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

/// For each way in which a file can come by its name.
class NamingAFile : public testing::TestWithParam<Naming> {
protected:
    std::string failure(const QString& name, Over over) {
        return thrownBy([&] { writeFile(path(name), "new", over, GetParam()); });
    }
    QString path(const QString& name) const { return folder.filePath(name); }

    QTemporaryDir folder;
};

TEST_P(NamingAFile, GivesAWholeFileOrNone) {
    const QString longest = QString(85, QChar(0x9AD8));
    for (const QString& name : {QString("a"), QString("[1]* ?"), longest}) {
        EXPECT_EQ(failure(name, Over::Nothing), "") << name.toStdString();
        EXPECT_EQ(contentOf(path(name)), "new");
        write(path(name), "old");
        EXPECT_EQ(failure(name, Over::Nothing), "a file of that name is there already");
        EXPECT_EQ(contentOf(path(name)), "old");
        QFile::setPermissions(path(name), QFile::ReadOwner | QFile::WriteOwner);
        EXPECT_EQ(failure(name, Over::OldFile), "");
        EXPECT_EQ(contentOf(path(name)), "new");
        EXPECT_FALSE(QFile::permissions(path(name)) & QFile::ReadOther);
        EXPECT_EQ(allIn(folder.path()), QStringList(name)) << "nothing is left over";
        QFile::remove(path(name));
        EXPECT_EQ(failure(name, Over::OldFile), "") << "it has gone meanwhile";
        EXPECT_TRUE(QFile::permissions(path(name)) & QFile::ReadOther);
        QFile::remove(path(name));
    }
    EXPECT_EQ(failure(longest + 'a', Over::Nothing), "File name too long");
    EXPECT_EQ(failure("none/a", Over::Nothing), "No such file or directory");
    EXPECT_EQ(allIn(folder.path()), QStringList());
}

TEST_P(NamingAFile, FollowsALinkOnlyWhereAnOldFileMayGo) {
    ASSERT_TRUE(QDir(folder.path()).mkpath("below"));
    write(path("below/a"), "old");
    QFile::link("below/a", path("there"));
    QFile::link("below/b", path("broken"));
    for (const char* link : {"there", "broken"}) {
        EXPECT_NE(failure(link, Over::Nothing), "");
        EXPECT_EQ(failure(link, Over::OldFile), "");
        EXPECT_TRUE(QFileInfo(path(link)).isSymLink());
        EXPECT_EQ(contentOf(path(link)), "new");
    }
    EXPECT_EQ(failure("below", Over::OldFile), "Is a directory");
    EXPECT_EQ(allIn(path("below")), QStringList({"a", "b"}));
}

TEST_P(NamingAFile, LeavesNothingOnAFullDisk) {
    write(path("a"), "old");
    for (const Over over : {Over::Nothing, Over::OldFile}) {
        const FullDisk disk(100000);
        EXPECT_EQ(thrownBy([&] {
                      writeFile(path(over == Over::Nothing ? "b" : "a"), QByteArray(200000, 'x'), over, GetParam());
                  }),
                  "File too large");
    }
    EXPECT_EQ(contentOf(path("a")), "old");
    EXPECT_EQ(allIn(folder.path()), QStringList("a"));
}

TEST_P(NamingAFile, LeavesWhatGrowsToWhoeverWritesIt) {
    const QStringList others = {".zebsim-0123abcd-0123456789abc.part", ".zebsim-notes"};
    for (const QString& other : others) {
        write(path(other), "of another machine, or of a user");
    }
    const auto left = [&] { return allIn(folder.path()).size() - others.size(); };
    {
        FileWriter file(path("a"), Over::Nothing, GetParam());
        file.write("new");
        EXPECT_EQ(contentOf(file.temporaryPath()), "new");
        removeLeftOvers(folder.path());
        EXPECT_EQ(contentOf(file.temporaryPath()), "new");
        EXPECT_EQ(left(), GetParam() == Naming::Unnamed ? 0 : 1);
        // As if its program had been killed.
        QFile::copy(file.temporaryPath(), file.temporaryPath().replace(QRegularExpression(".\\.part"), "0.part"));
    }
    removeLeftOvers(folder.path());
    EXPECT_EQ(left(), 0) << "what is locked by nobody goes";
}

TEST_P(NamingAFile, NeedsNeitherLocksNorLinks) {
    isPoor = true;
    for (const Over over : {Over::Nothing, Over::OldFile}) {
        EXPECT_EQ(failure("a", over), "");
        EXPECT_EQ(contentOf(path("a")), "new");
    }
    EXPECT_EQ(allIn(folder.path()), QStringList("a"));
    isPoor = false;
}

INSTANTIATE_TEST_SUITE_P(EachWay, NamingAFile,
                         testing::Values(Naming::Unnamed, Naming::Rename, Naming::Link, Naming::Claim));

}  // namespace
