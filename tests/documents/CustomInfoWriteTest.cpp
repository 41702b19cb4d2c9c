#include "Course.h"
#include "CustomInfoReader.h"
#include "CustomInfoWriter.h"
#include "Files.h"
#include "FullDisk.h"
#include "UTL_Converter.h"
#include "UTL_Exception.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QVariantMap item(const QString& name, const QString& value = QString(), bool shown = false) {
    return {{"name", name}, {"value", value}, {"unit", ""}, {"display", shown}, {"usefilename", shown}};
}

TEST(CustomInfoWrite, HasThisOrder) {
    const QList<QVariantMap> items{item("a", QStringLiteral("<1> & \"2\" 試") + QChar(QChar::ByteOrderMark))};
    QByteArray expected =
        "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"no\"?>\n"
        "<custom>\n"
        "  <version>2.0 &amp;</version>\n"
        "  <customItems>\n"
        "    <customItem>\n"
        "      <name>a</name>\n"
        "      <value>&lt;1> &amp; \"2\" \xE8\xA9\xA6&#xfeff;</value>\n"
        "      <unit></unit>\n"
        "      <display>false</display>\n"
        "      <usefilename>false</usefilename>\n"
        "    </customItem>\n"
        "  </customItems>\n"
        "</custom>\n";
    EXPECT_EQ(writeCustomInfo(items, "2.0 &", TableDialect).bytes, expected);
    expected.replace("<usefilename>false", "<usefilename>true");
    EXPECT_EQ(writeCustomInfo(items, "2.0 &", DialogDialect).bytes, expected) << "the dialog's is always in names";
    EXPECT_EQ(writeCustomInfo({}, "", TableDialect).bytes.mid(64),
              "  <version></version>\n  <customItems/>\n</custom>\n");
}

TEST(CustomInfoWrite, ComesBackLetterForLetter) {
    const auto text = [](std::initializer_list<ushort> letters) {
        return QString::fromUtf16(letters.begin(), int(letters.size()));
    };
    const QString kept =
        text({'\t', '\n', '\r', ' ', 0x7F, 0x85, 0x2028, 0xD7FF, 0xE000, 0xFEFF, 0xFFFD, 0xD83D, 0xDE00});
    const struct {
        QString written;
        QString read;
    } cases[] = {
        {"a" + kept, "a" + kept},
        {text({'a', 0, 8, 11, 12, 14, 31, 0xFFFE, 0xFFFF, 0xD800, 'b', 0xDBFF, 0xE000, 0xDC00, 0xDFFF}),
         text({'a', 'b', 0xE000})},
        {" a\r\n\rb\t ", " a\r\n\rb\t "},
        {"]]>]]&gt;<![CDATA[", "]]>]]&gt;<![CDATA["},
        {" \r\n", ""},
    };
    for (const auto& each : cases) {
        const QByteArray bytes = writeCustomInfo({item(each.written, each.written)}, "1", TableDialect).bytes;
        EXPECT_EQ(readCustomInfo(bytes, TableDialect).items, QList<QVariantMap>{item(each.read, each.read)})
            << bytes.toStdString();
    }
}

TEST(CustomInfoWrite, RefusesWhatNobodyCouldReadBack) {
    const auto list = [](int count, int letters) {
        QList<QVariantMap> items;
        for (int i = 0; i < count; ++i) {
            items.append(item(QString::number(i), QString(letters, 'x')));
        }
        return items;
    };
    for (const auto& full : {list(1024, 400), list(1, 16384)}) {
        EXPECT_EQ(readCustomInfo(writeCustomInfo(full, "1", TableDialect).bytes, TableDialect).items, full);
    }
    const struct {
        QList<QVariantMap> items;
        const char* reason;
    } cases[] = {
        {list(1025, 400), "with the item \"1024\" the list is too long"},
        {list(70, 16000), "with the item \"64\" the list is too long"},
        {{item("a"), item("b", QString(3300, '&'))}, "a text of the item \"b\" is too long"},
        {{item("c" + QString(16384, 'y'))},
         "a text of the item \"cyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy\" is "
         "too long"},
    };
    for (const auto& each : cases) {
        const CustomInfoWriting writing = writeCustomInfo(each.items, "1", TableDialect);
        EXPECT_EQ(writing.bytes, "");
        EXPECT_EQ(writing.reason, each.reason);
    }
    EXPECT_EQ(writeCustomInfo({}, QString(16385, 'v'), TableDialect).bytes, "");
}

/// What the log had before the call failed, what the failure says, and its code.
template <typename Call>
QString failureOf(Call&& call) {
    Course course;
    try {
        call();
    } catch (const UTL_Exception& e) {
        QStringList log = course.take();
        log.removeLast();
        return (log << e.what() << QString::number(e.errorCode())).join('\n');
    }
    return "none";
}

TEST(CustomInfoFile, TellsPathAndReason) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.xml");
    const QString away = folder.filePath("gone/a.xml");
    const QString broken = folder.filePath("b.xml");
    write(broken, "<job>\n<a>\n</b></job>");
    const QList<QVariantMap> good{item("n", "v", true)};
    QList<QVariantMap> list;
    const auto reading = [&](const QString& from) {
        return failureOf([&] { UTL_Converter::xml2CustomInfo(from, list); });
    };
    const auto writing = [](const QString& to, const QString& value) {
        return failureOf([&] { UTL_Converter::customInfo2xml({item("n", value)}, to, "1"); });
    };
    UTL_Converter::customInfo2xml(good, path, "1");
    EXPECT_EQ(reading(path), "none");
    const QString opened = "critical: UTL_Converter::%1 QFile::Open errorCode \"No such file or directory\"\n" + away +
                           ": No such file or directory\n1";
    EXPECT_EQ(reading(away), opened.arg("xml2CustomInfo"));
    EXPECT_EQ(writing(away, ""), opened.arg("customInfo2xml"));
    EXPECT_EQ(reading(broken), "critical: No custom information in \"" + broken +
                                   "\" line 3 column 4 \"Opening and ending tag mismatch.\"\n" + broken +
                                   ": Opening and ending tag mismatch.\n2");
    EXPECT_EQ(reading("/dev/null").section('\n', 1), "/dev/null: it is not a regular file\n1");
    write(broken, "<job><a/></job>" + QByteArray(1024 * 1024, '\n'));
    EXPECT_EQ(reading(broken).section('\n', 1), broken + ": it is too large\n2");
    EXPECT_EQ(list, good) << "as it was";
    EXPECT_EQ(writing(path, QString(20000, 'x')), path + ": a text of the item \"n\" is too long\n2");
    {
        const FullDisk disk(100);
        EXPECT_EQ(writing(path, ""), path + ": only a part of it could be written; the disk may be full\n2");
    }
    EXPECT_EQ(reading(path), "none");
    EXPECT_EQ(list, good) << "the old file stands";
}

}  // namespace
