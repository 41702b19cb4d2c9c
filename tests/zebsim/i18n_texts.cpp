#include "PreferencePages.h"

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

/// Where each key was found first.
using Keys = QMap<QString, QString>;

QString contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// The literals in what `pattern` captures first.
void collect(Keys& keys, const QString& file, const QString& text, const char* pattern) {
    static const QRegularExpression literal(QStringLiteral(R"re("((?:[^"\\]|\\.)*)"|'((?:[^'\\]|\\.)*)')re"));
    const QRegularExpression wanted(QString::fromLatin1(pattern), QRegularExpression::DotMatchesEverythingOption);
    for (auto call = wanted.globalMatch(text); call.hasNext();) {
        QString key;
        // Literals side by side are one.
        QString part = call.next().captured(1).replace(QRegularExpression(QStringLiteral("\"\\s+\"")), QString());
        for (auto found = literal.globalMatch(part); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            key = match.captured(1) + match.captured(2);
            if (!key.isEmpty()) keys.insert(key.replace(QStringLiteral("\\\""), QStringLiteral("\"")), file);
        }
    }
}

void collectCpp(Keys& keys, const QString& file, QString text) {
    text.remove(QRegularExpression(QStringLiteral("^#include.*$"), QRegularExpression::MultilineOption));
    collect(keys, file, text, R"re(\b(?:translated?|uiText)\(((?:QStringLiteral\()?\s*"[^;]*?")\s*\))re");
    collect(
        keys, file, text,
        R"re(\b(?:confirm|confirmModal|warn|alert|info|warnOkCancel)\(\s*((?:QStringLiteral\()?\s*"[^;]*?")\s*[,)])re");
    // The short names of units, and the texts of failures.
    if (file.endsWith(QLatin1String("CalibrationUnits.cpp"))) collect(keys, file, text, R"re(,\s*("[^"]*"))re");
    collect(keys, file, text, R"re(Exception(?: \w+)?\((QStringLiteral\("[^"]*"\)))re");
    // Why files or cameras fail while they are saved.
    if (file.contains(QLatin1String("/saving/")))
        collect(keys, file, text, R"re(Error\([^;"]*QStringLiteral\(("[^"]*")\))re");
    // What stands in a support file.
    collect(keys, file, text, R"re(("- [^"]*"))re");
    // What a record shows begins with a capital; its members do not.
    if (file.contains(QLatin1String("/records/"))) collect(keys, file, text, R"re(("[A-Z][A-Za-z_ .]{2,}"))re");
}

void collectScript(Keys& keys, const QString& file, const QString& text) {
    collect(keys, file, text, R"re(\b(?:translate|alert|warn|info|confirm)\(([^()]*)\))re");
    collect(keys, file, text, R"re(\bcaption: ('[^']*'))re");
}

void collectMarkup(Keys& keys, const QString& file, const QString& text) {
    static const QRegularExpression element(
        QStringLiteral(R"re(<\w+\b([^>]*\bclass="[^"]*\blocalize\b[^"]*"[^>]*)>(?:<span></span>)?\s*([^<]*))re"));
    static const QRegularExpression attribute(QStringLiteral(R"re(\b(?:title|value)="([^"]*)")re"));
    for (auto found = element.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const bool isChoice = match.captured(0).startsWith(QLatin1String("<option"));
        QStringList texts = {match.captured(2).simplified()};
        if (!isChoice) texts << attribute.match(match.captured(1)).captured(1);
        for (const QString& key : qAsConst(texts)) {
            if (!key.isEmpty()) keys.insert(key, file);
        }
    }
}

Keys keysInSources() {
    Keys keys;
    for (const char* folder : {"webdialog", "export", "documents", "sync", "table", "plugin", "pages", "zebsim"}) {
        QDirIterator files(QStringLiteral(SOURCE_FOLDER "/") + QLatin1String(folder),
                           {"*.cpp", "*.h", "*.js", "*.html"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            const QString text = contentOf(file);
            if (file.endsWith(QLatin1String(".js")))
                collectScript(keys, file, text);
            else if (file.endsWith(QLatin1String(".html")))
                collectMarkup(keys, file, text);
            else
                collectCpp(keys, file, text);
        }
    }
    for (const PreferencePage& page : preferencePages()) {
        keys.insert(page.id, "PreferencePages.cpp");
        for (const PreferenceField& field : page.fields) {
            keys.insert(field.label, "PreferencePages.cpp");
            for (const PreferenceChoice& choice : field.choices) keys.insert(choice.label, "PreferencePages.cpp");
        }
    }
    return keys;
}

/// The finished texts of a catalogue by key.
QMap<QString, QString> catalogue(const QString& language) {
    QMap<QString, QString> texts;
    QXmlStreamReader xml(contentOf(QStringLiteral(SOURCE_FOLDER "/zebsim/i18n/zeb4_%1.ts").arg(language)));
    QString key;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("source")) key = xml.readElementText();
        if (xml.name() == QLatin1String("translation") && xml.attributes().value("type").isEmpty()) {
            EXPECT_FALSE(texts.contains(key)) << language.toStdString() << " has two texts for " << key.toStdString();
            texts.insert(key, xml.readElementText());
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
}

/// What comes before a name that is known only when the program runs, and what every language writes alike.
bool needsNoText(const QString& key) {
    static const QRegularExpression plain(QStringLiteral("^(p_|LIVE|vi::\\w+|[^A-Za-z]*)$"));
    return plain.match(key).hasMatch();
}

TEST(Texts, StandInBothLanguagesForEveryKeyOfTheSources) {
    const Keys keys = keysInSources();
    const QMap<QString, QString> english = catalogue("en");
    const QMap<QString, QString> japanese = catalogue("ja");
    ASSERT_TRUE(keys.contains("Quit WREN?") && keys.contains("Show all") && keys.contains("Camera name") &&
                keys.contains("Start Trg") && keys.contains("Preferences"))
        << "the search finds keys of each kind";
    for (auto key = keys.begin(); key != keys.end(); ++key) {
        if (needsNoText(key.key())) continue;
        const std::string where = "\"" + key.key().toStdString() + "\" of " + key.value().toStdString();
        EXPECT_FALSE(english.value(key.key()).isEmpty()) << where << " has no English text";
        EXPECT_FALSE(japanese.value(key.key()).isEmpty()) << where << " has no Japanese text";
    }
    EXPECT_EQ(english.keys(), japanese.keys());
}

}  // namespace
