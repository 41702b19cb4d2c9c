#include "Course.h"
#include "CustomInfoBounds.h"
#include "CustomInfoReader.h"
#include "CustomInfoRoundTrip.h"
#include "Files.h"
#include "HostileFiles.h"

#include <QDir>
#include <QTextCodec>

#include <gtest/gtest.h>

namespace {

const QByteArray Named = "<customItem><name>n</name></customItem>";

QByteArray list(const QByteArray& items) {
    return "<custom><customItems>" + items + "</customItems></custom>";
}

QByteArray item(const QByteArray& fields) {
    return list("<customItem>" + fields + "</customItem>");
}

/// The items, or why there are none.
QString read(const QByteArray& bytes, const CustomInfoDialect& dialect = TableDialect) {
    const CustomInfoReading reading = readCustomInfo(bytes, dialect);
    return reading.items.isEmpty() ? reading.reason : textOf(reading.items, dialect);
}

TEST(CustomInfoRead, TakesWhatOthersWrite) {
    const struct {
        const char* sentence;
        QByteArray bytes;
        const char* table;
        /// Null where it is the same.
        const char* dialog;
    } cases[] = {
        {"fields in another order and case, one of them twice, one unknown",
         item("<UseFileName>true</UseFileName><DISPLAY>true</DISPLAY><unit>m</unit><Value>1</Value><Name>m</Name>"
              "<nAME>n</nAME><other>o</other>"),
         "n|1|m|true|true", "n|1|m|true|-"},
        {"what is missing stays away", item("<name>n</name>"), "n|-|-|-|-", nullptr},
        {"a flag is exact", item("<name>n</name><unit/><display>True</display>"), "n|-||false|-", nullptr},
        {"an item without a name is dropped", item("<value>v</value>"), "it holds no item", nullptr},
        {"an empty name is one", item("<name/>"), "|-|-|-|-", nullptr},
        {"another name for a known thing", item("<name>Sf_TestCode</name>"), "TestNo|-|-|-|-", nullptr},
        {"names twice", list(Named + Named), "n|-|-|-|-;n|-|-|-|-", nullptr},
        {"the frame is exact, and only in its place",
         "<custom><CustomItems>" + Named + "</CustomItems><a><customItems>" + Named +
             "</customItems></a><customItems>" + "<CustomItem><name>o</name></CustomItem><a>" + Named +
             "</a></customItems></custom>",
         "it holds no item", nullptr},
        {"several lists under any root",
         "<any><customItems>" + Named + "</customItems><b/><customItems>" + Named + "</customItems></any>",
         "n|-|-|-|-;n|-|-|-|-", nullptr},
        {"comments, instructions and CDATA everywhere",
         "<!--a--><?b c?><custom><!--a--><customItems><?b c?><customItem><!--a--><name>n<!--a-->a<![CDATA[<m>&]]>e"
         "</name><value> <!--a--> v<b>w<c>x</c></b> <?b c?> y\t</value></customItem></customItems></custom><!--a-->",
         "na<m>&e| vwx y\t|-|-|-", nullptr},
        {"blanks alone are nothing", item("<name> n </name><value>\r\n\t</value><unit><![CDATA[ ]]></unit>"),
         " n || |-|-", nullptr},
        {"line ends of another system", item("<name>n</name>\r\n<value>a\r\nb&#xd;\n</value>"), "n|a\nb\r\n|-|-|-",
         nullptr},
        {"a job with comments and loose text between its elements",
         "<Job>x<!--a--><Cm_Comment display='true' b='c' unit=\"m\">v</Cm_Comment>y<q display='TRUE'>w<r>z</r></q>"
         "<e/></Job>",
         "Comments|v|m|true|-;q|wz||false|-;e|||true|-", nullptr},
        {"both forms in a job", "<job><customItems>" + Named + "</customItems><q>v</q></job>", "n|-|-|-|-;q|v||true|-",
         "customItems|n||true|-;q|v||true|-"},
        {"a document type without entities", "<!DOCTYPE job [<!ELEMENT q ANY>]><job><q/></job>", "q|||true|-", nullptr},
        {"an entity that nobody knows", item("<name>&n;</name>"), "the entity n is declared nowhere", nullptr},
        {"an attribute twice", item("<name a='' a=''>n</name>"), "Attribute 'a' redefined.", nullptr},
        {"another version", "<?xml version='1.1'?>" + item("<name>n</name>"), "Unsupported XML version.", nullptr},
        {"a control character", item("<name>n\x01</name>"), "Unexpected ''.", nullptr},
        {"something behind the end, and behind the first block",
         item("<name>n</name>") + QByteArray(1000, ' ') + "<a/>", "Extra content at end of document.", nullptr},
        {"nothing", "", "Premature end of document.", nullptr},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(read(each.bytes), each.table) << each.sentence;
        EXPECT_EQ(read(each.bytes, DialogDialect), each.dialog != nullptr ? each.dialog : each.table) << each.sentence;
    }
}

TEST(CustomInfoRead, TakesEncodingsThatAreWhatTheySay) {
    const QString text = QStringLiteral("試験ー表①ソ能");
    const auto encoded = [&](const QByteArray& declared, const QByteArray& codec) {
        QByteArray head;
        if (!declared.isEmpty()) {
            head = "<?xml version='1.0' encoding='" + declared + "'?>\n";
        }
        const QString xml = QString::fromUtf8(head + item("<name>n</name><value>" + text.toUtf8() + "</value>"));
        return QTextCodec::codecForName(codec)->fromUnicode(xml);
    };
    const QString good = "n|" + text + "|-|-|-";
    const QByteArray utf8 = encoded("", "UTF-8");
    EXPECT_EQ(read("\xEF\xBB\xBF" + utf8), good);
    for (const char* name : {"utf-8", "UTF-16", "UTF-16LE", "Shift_JIS", "Windows-31J", "EUC-JP", "ISO-2022-JP"}) {
        EXPECT_EQ(read(encoded(name, name)), good) << name;
    }
    const struct {
        const char* sentence;
        QByteArray bytes;
    } lies[] = {
        {"no declaration", encoded("", "Shift_JIS")},
        {"another one", encoded("utf-8", "EUC-JP")},
        {"two bytes a letter, it says", encoded("UTF-16", "UTF-8")},
        {"a mark against the declaration", "\xFF\xFE" + encoded("utf-8", "UTF-8")},
        {"nobody knows it", encoded("nothing", "UTF-8")},
    };
    for (const auto& each : lies) {
        EXPECT_NE(readCustomInfo(each.bytes, TableDialect).reason, "")
            << each.sentence << read(each.bytes).toStdString();
    }
}

TEST(CustomInfoRead, PaysNothingForHostileFiles) {
    for (const HostileFile& file : hostileFiles()) {
        const QByteArray bytes = bytesOf(file, CustomInfoBounds::FileBytes);
        for (const CustomInfoDialect& dialect : {TableDialect, DialogDialect}) {
            const CustomInfoReading reading = readCustomInfo(bytes, dialect);
            EXPECT_EQ(reading.reason.isEmpty(), file.holdsItems) << file.name << ": " << reading.reason.toStdString();
            EXPECT_LE(reading.items.size(), CustomInfoBounds::Items) << file.name;
        }
    }
    const struct {
        const char* sentence;
        QByteArray inside;
        QByteArray beyond;
    } bounds[] = {
        {"levels", "<job>" + QByteArray("<a>").repeated(63) + QByteArray("</a>").repeated(63) + "</job>",
         "<job>" + QByteArray("<a>").repeated(64) + QByteArray("</a>").repeated(64) + "</job>"},
        {"a text", item("<name>" + QByteArray(16384, 'x') + "</name>"),
         item("<name>" + QByteArray(17500, 'x') + "</name>")},
        {"a file", item("<name>n</name>") + QByteArray(1024 * 1024 - item("<name>n</name>").size(), '\n'),
         item("<name>n</name>") + QByteArray(1024 * 1024 + 1 - item("<name>n</name>").size(), '\n')},
    };
    for (const auto& each : bounds) {
        EXPECT_EQ(readCustomInfo(each.inside, TableDialect).reason, "") << each.sentence;
        EXPECT_NE(readCustomInfo(each.beyond, TableDialect).reason, "") << each.sentence;
    }
}

TEST(CustomInfoRead, TakesNoPartOfAFileThatWasCut) {
    const QByteArray good = "<?xml version='1.0' encoding='utf-8'?>\n<custom><!--a--><customItems a='b'>" + Named +
                            "<customItem><name>\xE8\xA9\xA6&amp;</name></customItem></customItems></custom>";
    ASSERT_EQ(readCustomInfo(good, TableDialect).items.size(), 2);
    for (int size = 0; size < good.size(); ++size) {
        EXPECT_NE(readCustomInfo(good.left(size), TableDialect).reason, "") << size;
        EXPECT_EQ(faultOfReading(good.left(size) + good), "") << size;
    }
}

TEST(CustomInfoRead, TakesTheCorpus) {
    const QFileInfoList files = QDir(QStringLiteral(WREN_CORPUS)).entryInfoList(QDir::Files);
    ASSERT_GT(files.size(), 20);
    for (const QFileInfo& file : files) {
        EXPECT_EQ(faultOfReading(contentOf(file.filePath())), "") << file.fileName().toStdString();
    }
}

}  // namespace
