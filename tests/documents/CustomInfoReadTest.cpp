#include "Course.h"
#include "CustomInfoReader.h"
#include "Files.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

/// With letters that can't be seen as their numbers.
QString visible(const QString& text) {
    QString shown;
    for (const QChar letter : text) {
        shown += letter.isPrint() ? QString(letter) : QStringLiteral("\\u%1").arg(letter.unicode(), 4, 16, QChar('0'));
    }
    return shown;
}

/// Name, value, unit, whether it is shown and whether it may be in names of files, of each item, with "-" where it has
/// no such key; or why there is no item.
QString read(const QByteArray& bytes, const CustomInfoDialect& dialect) {
    const CustomInfoReading reading = readCustomInfo(bytes, dialect);
    QStringList items;
    for (const QVariantMap& item : reading.items) {
        QStringList fields;
        for (const char* key : {"name", "value", "unit", dialect.shownKey, "usefilename"}) {
            fields << item.value(key, "-").toString();
        }
        items << fields.join('|');
    }
    return visible(reading.reason + items.join(';'));
}

TEST(CustomInfoRead, TakesTheCorpus) {
    QString readings;
    for (const QFileInfo& file : QDir(WREN_CORPUS).entryInfoList(QDir::Files, QDir::Name)) {
        const QByteArray bytes = contentOf(file.filePath());
        const QString table = read(bytes, TableDialect);
        const QString dialog = read(bytes, DialogDialect);
        readings += file.fileName() + ": " + table + '\n';
        readings += dialog == table ? QString() : file.fileName() + ", dialog: " + dialog + '\n';
    }
    EXPECT_EQ(readings.toStdString(), contentOf(WREN_CORPUS ".expected").toStdString());
}

TEST(CustomInfoRead, KeepsToItsBounds) {
    const auto job = [](const QByteArray& inside) -> QByteArray { return "<job>" + inside + "</job>"; };
    const auto times = [](const QByteArray& bytes, int count) { return bytes.repeated(count); };
    const struct {
        QByteArray inside;
        QByteArray beyond;
        const char* reason;
    } bounds[] = {
        {job(times("<a/>", 1024)), job(times("<a/>", 1025)), "it holds too many items"},
        {job("<a>" + times("x", 16384) + "</a>"), job("<a>" + times("x", 17500) + "</a>"),
         "one token of it is too long"},
        {job("<a>" + times("xxxx<!---->", 90'000) + "</a>"), job("<a/><!--" + times("&#38;", 200'000) + "-->"),
         "one token of it is too long"},
        {job("<a b='" + times("x", 16000) + "'/>"), job("<a" + times(" b=''", 200'000) + "/>"),
         "one token of it is too long"},
        {job("<a/>") + times("\n", 1024 * 1024 - 15), job("<a/>") + times("\n", 1024 * 1024 - 14), "it is too large"},
    };
    for (const auto& each : bounds) {
        EXPECT_EQ(readCustomInfo(each.inside, TableDialect).reason, "") << each.inside.left(20).constData();
        EXPECT_EQ(readCustomInfo(each.beyond, TableDialect).reason, each.reason) << each.beyond.left(20).constData();
    }
}

TEST(CustomInfoRead, TakesNoPartOfAFileThatWasCut) {
    const QByteArray good =
        "<?xml version='1.0' encoding='utf-8'?>\n<custom><!--a--><customItems a='b'><customItem>"
        "<name>n</name></customItem><customItem><name>\xE8\xA9\xA6&amp;</name></customItem>"
        "</customItems></custom>";
    ASSERT_EQ(readCustomInfo(good, TableDialect).items.size(), 2);
    for (int size = 0; size < good.size(); ++size) {
        EXPECT_NE(readCustomInfo(good.left(size), TableDialect).reason, "") << size;
    }
}

}  // namespace
