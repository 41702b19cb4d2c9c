#include "Course.h"
#include "VisaFile.h"
#include "VisaLibrary.h"
#include "vi.h"

#include <QMap>

#include <gmock/gmock.h>

#include <functional>

namespace {

const auto Resource = QStringLiteral("TCPIP0::10.0.0.2::inst0::INSTR");

/// What stands in the log, what is thrown, and what `open` answers.
QStringList courseOf(const std::function<void()>& work) {
    Course course;
    try {
        work();
    } catch (const std::runtime_error& e) {
        Course::note(QStringLiteral("throws: ") % QString::fromUtf8(e.what()));
    }
    return course.take();
}

void openAndNote() {
    Course::note(vi::open(Resource) ? "open" : "not open");
}

class ViTest : public testing::Test {
protected:
    ViTest() { VisaLibrary::instance().load(); }
    ~ViTest() override { VisaLibrary::instance().unload(); }

    VisaFile file;
};

TEST_F(ViTest, EachFailureHasItsText) {
    const auto send = [] { vi::sendCommandString(QStringLiteral("DISP ON\n")); };
    const QString inOpen = QStringLiteral("warning: visa.dll error, function: vi::open vifunc: ");
    const QString inClose = QStringLiteral("warning: visa.dll error, function: vi::close vifunc: viClose ");
    const QString thrown = QStringLiteral("throws: visa.dll error, function: vi::");
    const struct {
        QByteArray script;
        std::function<void()> work;
        QStringList course;
    } rows[] = {
        {R"("viOpenDefaultRM": {"status": 3221159998})",
         openAndNote,
         {inOpen % "viOpenDefaultRM error: -1073807298", "not open"}},
        {R"("viOpen": {"status": -1073807343})",
         openAndNote,
         {inOpen % "viOpen error: -1073807343 constr: " % Resource, "not open"}},
        // A warning at the opening is no success.
        {R"("viOpen": {"status": 3})", openAndNote, {inOpen % "viOpen error: 3 constr: " % Resource, "not open"}},
        {R"("viClose": {"status": -1})", vi::close, {inClose % "(1) error: -1", inClose % "(2) error: -1"}},
        {R"("viClose": {"status": 3, "from": 2})", vi::close, {inClose % "(2) error: 3"}},
        {R"("viClear": {"status": -1})", vi::clear, {thrown % "clear error:-1"}},
        {R"("viPrintf": {"status": -1})", send, {thrown % "sendCommandString error:-1 command:DISP ON\n"}},
        {R"("viScanf": {"never": true})", [] { vi::recvString(); }, {thrown % "recvString error:-1073807339"}},
        // One at a command is.
        {R"("viPrintf": {"status": 1}, "viClear": {"status": 1})", [send] { send(), vi::clear(); }, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.script.toStdString());
        file.script("{}");
        ASSERT_TRUE(vi::open(Resource));
        file.script('{' + row.script + '}');
        EXPECT_EQ(courseOf(row.work), row.course);
    }
}

TEST_F(ViTest, WithoutALibraryEveryCallFails) {
    VisaLibrary::instance().unload();
    EXPECT_EQ(courseOf(openAndNote).last(), "not open");
    EXPECT_EQ(courseOf(vi::close), QStringList()) << "there is nothing to close";
    EXPECT_THROW(vi::clear(), std::runtime_error);
    EXPECT_THROW(vi::sendCommandString(QStringLiteral("*RST\n")), std::runtime_error);
    EXPECT_THROW(vi::recvString(), std::runtime_error);
    EXPECT_EQ(file.journal(), QStringList());
}

}  // namespace
