#include "Course.h"
#include "CustomInfoRoundTrip.h"
#include "CustomInfoWriter.h"
#include "Files.h"
#include "FullDisk.h"
#include "UTL_Converter.h"
#include "UTL_Exception.h"

#include <QTemporaryDir>

#include <sys/stat.h>

#include <gtest/gtest.h>

namespace {

QVariantMap item(const QString& name, const QString& value = QString(), bool shown = false) {
    return {{"name", name}, {"value", value}, {"unit", ""}, {"display", shown}, {"selected", shown}};
}

TEST(CustomInfoWrite, HasTheFormOfTheFile) {
    const QList<QVariantMap> items{item("a", "<1> & \"2\"", true), item("b", QStringLiteral("試"))};
    QByteArray expected =
        "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"no\"?>\n"
        "<custom>\n"
        "  <version>2.0 &amp;</version>\n"
        "  <customItems>\n"
        "    <customItem>\n"
        "      <name>a</name>\n"
        "      <value>&lt;1> &amp; \"2\"</value>\n"
        "      <unit></unit>\n"
        "      <display>true</display>\n"
        "      <usefilename>true</usefilename>\n"
        "    </customItem>\n"
        "    <customItem>\n"
        "      <name>b</name>\n"
        "      <value>\xE8\xA9\xA6</value>\n"
        "      <unit></unit>\n"
        "      <display>false</display>\n"
        "      <usefilename>false</usefilename>\n"
        "    </customItem>\n"
        "  </customItems>\n"
        "</custom>\n";
    EXPECT_EQ(writeCustomInfo(items, "2.0 &", TableDialect).bytes, expected);
    expected.replace("<usefilename>false", "<usefilename>true");
    EXPECT_EQ(writeCustomInfo(items, "2.0 &", DialogDialect).bytes, expected) << "the dialog's is always in names";
}

TEST(CustomInfoWrite, ComesBackLetterForLetter) {
    QString all;
    for (uint letter = 0; letter < 0x11000; ++letter) {
        all += letter < 0x10000 ? QString(QChar(letter)) : QString::fromUcs4(&letter, 1);
        if (all.size() >= 1000) {
            EXPECT_EQ(faultOfWriting({item("n", all)}, TableDialect), "") << letter;
            all.clear();
        }
    }
    const QString half(QChar(0xD83D));
    for (const QString& text : QStringList{"\r", " a\r\n\rb\t ", "]]>]]&gt;<![CDATA[", "\n\n", QStringLiteral("😀"),
                                           QString(400, QChar::ByteOrderMark), half + "a", "a" + half, " "}) {
        EXPECT_EQ(faultOfWriting({item(text, text, true), item("b" + text)}, DialogDialect), "") << text.toStdString();
    }
}

TEST(CustomInfoWrite, RefusesWhatNobodyCouldReadBack) {
    QList<QVariantMap> many;
    for (int i = 0; i < 1024; ++i) {
        many.append(item(QStringLiteral("n%1").arg(i), QString(400, 'x')));
    }
    EXPECT_EQ(faultOfWriting(many, TableDialect), "");
    EXPECT_NE(writeCustomInfo(many, "1", TableDialect).bytes, "");
    const QList<QVariantMap> more = many + QList<QVariantMap>{item("last")};
    many[700]["unit"] = QString(3300, QChar(0x3042));
    many[900]["unit"] = QString(16384, 'x');
    EXPECT_EQ(faultOfWriting({many[900]}, TableDialect), "");
    const struct {
        const char* sentence;
        QList<QVariantMap> items;
        const char* reason;
    } cases[] = {
        {"more than are read", more, "with the item \"last\" the list is too long"},
        {"a text over the bound by what it becomes",
         {item("a"), item("b", QString(3300, '&'))},
         "a text of the item \"b\" is too long"},
        {"a name over the bound", {item(QString(16385, 'y'))}, nullptr},
    };
    for (const auto& each : cases) {
        const CustomInfoWriting writing = writeCustomInfo(each.items, "1", TableDialect);
        EXPECT_EQ(writing.bytes, "") << each.sentence;
        EXPECT_LT(writing.reason.size(), 200) << each.sentence;
        if (each.reason != nullptr) {
            EXPECT_EQ(writing.reason, each.reason) << each.sentence;
        }
    }
}

/// What the call says, behind what the log has by then.
template <typename Call>
QStringList failureOf(Call&& call) {
    Course course;
    try {
        call();
    } catch (const UTL_Exception& e) {
        return course.take() + QStringList{QString::fromUtf8(e.what()), QString::number(e.errorCode())};
    }
    return course.take();
}

TEST(CustomInfoFile, TellsPathAndReason) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.xml");
    QList<QVariantMap> list;
    UTL_Converter::customInfo2xml({item("n", "v", true)}, path, "1");
    UTL_Converter::xml2CustomInfo(path, list);
    EXPECT_EQ(textOf(list, TableDialect), "n|v||true|true");

    const QString pipe = folder.filePath("pipe");
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    const QString broken = folder.filePath("b.xml");
    write(broken, "<job>\n<a>\n</b></job>");
    const QString opened = "critical: UTL_Converter::%1 QFile::Open errorCode \"%2\"";
    const struct {
        const char* sentence;
        QString path;
        QString line;
        QString reason;
        const char* code;
    } cases[] = {
        {"missing", folder.filePath("no.xml"), opened.arg("xml2CustomInfo", "No such file or directory"),
         "No such file or directory", "1"},
        {"a folder", folder.path(), opened.arg("xml2CustomInfo", "Is a directory"), "Is a directory", "1"},
        {"a pipe that nobody fills", pipe, opened.arg("xml2CustomInfo", "it is not a regular file"),
         "it is not a regular file", "1"},
        {"no item", broken,
         "critical: No custom information in \"" + broken + "\" line 3 column 4 \"Opening and ending tag mismatch.\"",
         "Opening and ending tag mismatch.", "2"},
    };
    for (const auto& each : cases) {
        const QString text = each.path + ": " + each.reason;
        EXPECT_EQ(
            failureOf([&] { UTL_Converter::xml2CustomInfo(each.path, list); }),
            (QStringList{each.line, "critical: \"APP_Exception:[message:" + text + "] [errorCode:" + each.code + "] \"",
                         text, each.code}))
            << each.sentence;
        EXPECT_EQ(list.size(), 1) << each.sentence;
    }
    const auto write = [](const QString& where, const QList<QVariantMap>& items) {
        return failureOf([&] { UTL_Converter::customInfo2xml(items, where, "1"); });
    };
    const QString away = folder.filePath("gone/a.xml");
    EXPECT_EQ(write(away, {item("n")}).mid(0, 1),
              QStringList(opened.arg("customInfo2xml", "No such file or directory")));
    EXPECT_EQ(write(away, {item("n")}).mid(2), (QStringList{away + ": No such file or directory", "1"}));
    EXPECT_EQ(write(path, {item("n", QString(20000, 'x'))}).mid(1),
              (QStringList{path + ": a text of the item \"n\" is too long", "2"}));
    {
        const FullDisk disk(100);
        EXPECT_EQ(write(path, {item("n")}).mid(1),
                  (QStringList{path + ": only a part of it could be written; the disk may be full", "2"}));
    }
    UTL_Converter::xml2CustomInfo(path, list);
    EXPECT_EQ(textOf(list, TableDialect), "n|v||true|true") << "the old file stands";
}

}  // namespace
