#include "CameraState.h"
#include "Files.h"
#include "ImageEffects.h"
#include "JsonError.h"
#include "RigFile.h"
#include "SettingsReader.h"
#include "SettingsRoundTrip.h"
#include "SettingsWriter.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

#define LOADS SOURCE_FOLDER "/tests/zebsim/loads/"

namespace {

/// Two heads of one device and another camera, with something in each setting.
QList<HeadSettings> someSettings() {
    CameraState state = standardRig(1).devices.first().heads.first();
    state.apply(QJsonDocument::fromJson(contentOf(LOADS "others.json")).toVariant().toMap());
    const QVariantMap settings = state.toPlain(CameraState::settings());
    return {{"10.0.0.1", 1, settings}, {"10.0.0.1", 2, settings}, {"10.0.0.2", 1, settings}};
}

/// What a file with that text is refused with, without its name; empty when it is taken.
std::string complaint(const QByteArray& text) {
    try {
        readSettingsText("x", text);
        return {};
    } catch (const JsonError& error) {
        EXPECT_EQ(QString(error.what()).left(3), "x: ") << error.what();
        return QString(error.what()).mid(3).toStdString();
    }
}

QByteArray settingsText(const QByteArray& settings) {
    return R"({"format": 1, "cameras": [{"address": "10.0.0.1", "heads": [{"head": 1, "settings": {)" + settings +
           "}}]}]}";
}

/// Which of the texts an independent validator refuses.
QVariantList refusedBySchema(const QStringList& texts) {
    const QTemporaryDir folder;
    write(folder.filePath("texts"), QJsonDocument(QJsonArray::fromStringList(texts)).toJson());
    QProcess python;
    python.start("python3", {SOURCE_FOLDER "/tests/zebsim/schema.py", SOURCE_FOLDER "/docs/rigx.schema.json",
                             folder.filePath("texts")});
    EXPECT_TRUE(python.waitForFinished(60000));
    EXPECT_EQ(python.readAllStandardError().toStdString(), "");
    return QJsonDocument::fromJson(python.readAllStandardOutput()).toVariant().toList();
}

TEST(SettingsFile, ComesBackAsItWas) {
    const QList<HeadSettings> written = someSettings();
    const QList<HeadSettings> read = readSettingsText("x", "\xEF\xBB\xBF" + writeSettings(written));
    ASSERT_EQ(read.size(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(read[i].address, written[i].address);
        EXPECT_EQ(read[i].head, written[i].head);
        for (const QString& name : CameraState::settings()) {
            EXPECT_EQ(read[i].settings[name], written[i].settings[name]) << name.toStdString();
        }
    }
    EXPECT_EQ(
        readSettingsText(
            "x", settingsText(R"("rate": 1000.0, "scale": 1e-999, "dualSlope": 0e70, "comment": "\ud83d\ude00")"))[0]
            .settings,
        (QVariantMap{{"rate", 1000U}, {"scale", 0.0}, {"dualSlope", 0}, {"comment", QString::fromUtf8("\U0001F600")}}));
}

TEST(SettingsFile, IsRefusedWithLineAndMember) {
    QList<QPair<QByteArray, QString>> rows{
        {"", "line 1: the file is empty"},
        {settingsText("\"name\": \"\xFF\""), "line 1: invalid encoding in string"},
        {"\xFF\xFE{", "line 1: it is no text in UTF-8"},
        {QByteArray("\0{\0}", 4), "line 1: it is no text in UTF-8"},
        {QByteArray(4'000'000, '['), "line 1: there are more than 64 levels"},
        {"[" + QByteArray("0,").repeated(4'000'000), "line 1: there are more than 1000000 values"},
        {QByteArray(20'000'000, '1'), "line 1: number too big to be stored in double"},
    };
    const QByteArray texts = contentOf(LOADS "complaints.json");
    for (const QVariant& row : QJsonDocument::fromJson(texts).toVariant().toList()) {
        rows.append({row.toMap()["text"].toString().toUtf8(), row.toMap()["complaint"].toString()});
    }
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(complaint(text), expected.toStdString()) << text.left(300).toStdString();
    }
    const QByteArray whole = writeSettings(someSettings()).trimmed();
    for (int bytes = 0; bytes < whole.size(); ++bytes) {
        EXPECT_EQ(complaint(whole.left(bytes)).rfind("line ", 0), 0U) << "cut off after " << bytes;
    }
}

TEST(SettingsFile, TakesOfEachSettingWhatTheSchemaTakes) {
    QList<QPair<QString, QByteArray>> rows;
    for (const QString& name : CameraState::settings()) {
        for (const QJsonValue value : QJsonDocument::fromJson(contentOf(LOADS "values.json")).array()) {
            const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
            rows.append({name, list.mid(1, list.size() - 2)});
        }
    }
    for (const ImageEffect& effect : imageEffects()) {
        for (const EffectNumber& number : effect.numbers) {
            for (const int value : {number.lowest - 1, number.lowest, number.lowest + 1, number.highest - 1,
                                    number.highest, number.highest + 1}) {
                const QString text("{\"%1\": {\"%2\": %3}}");
                rows.append({"pluginValues", text.arg(effect.name, number.name).arg(value).toLatin1()});
            }
        }
    }
    QStringList texts;
    QVariantList refused;
    for (const auto& [name, value] : rows) {
        const QByteArray text = settingsText("\n\"" + name.toLatin1() + "\": " + value);
        const std::string told = complaint(text);
        const std::string place = "line 2: cameras[0].heads[0].settings." + name.toStdString() + ": ";
        EXPECT_TRUE(told.empty() || told.rfind(place, 0) == 0) << told;
        refused += told.empty() ? QVariantList() : QVariantList{texts.size()};
        texts << text;
    }
    const QString manual = QString::fromUtf8(contentOf(SOURCE_FOLDER "/docs/rigx.md"));
    for (const QByteArray& text :
         {writeSettings(someSettings()), manual.section("```json\n", 1).section("```", 0, 0).toUtf8()}) {
        EXPECT_EQ(complaint(text), "");
        texts << text;
    }
    EXPECT_GT(refused.size(), texts.size() / 2);
    const QVariantList bySchema = refusedBySchema(texts);
    for (int i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(refused.contains(i), bySchema.contains(i)) << texts[i].toStdString();
    }
}

TEST(SettingsFile, OfTheCorpusIsReadAsItIsWritten) {
    const QDir corpus(SOURCE_FOLDER "/tests/zebsim/rigx");
    const QStringList names = corpus.entryList(QDir::Files);
    EXPECT_GE(names.size(), 6);
    for (const QString& name : names) {
        const QByteArray text = contentOf(corpus.filePath(name));
        EXPECT_EQ(faultOfSettings(text), QString()) << name.toStdString();
        EXPECT_EQ(complaint(text).empty(), !name.startsWith("bad")) << name.toStdString();
    }
}

TEST(SettingsFile, ThatIsNoneOrTooLargeIsNotRead) {
    const QTemporaryDir folder;
    const QString gone = folder.filePath("gone");
    const QString pipe = folder.filePath("pipe");
    const QString large = folder.filePath("large");
    mkfifo(QFile::encodeName(pipe), 0600);
    write(large, {});
    QFile::resize(large, 100 << 20);
    for (const QString& complaint :
         {QString(gone + ": No such file or directory"), QString(pipe + ": it is not a regular file"),
          QString(large + ": it is larger than 32 MiB")}) {
        const QString path = complaint.section(": ", 0, 0);
        try {
            readSettings(path);
            ADD_FAILURE() << complaint.toStdString();
        } catch (const JsonError& error) {
            EXPECT_EQ(QString(error.what()), complaint);
        }
    }
}

}  // namespace
