#include <QDirIterator>
#include <QFile>
#include <QLocale>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

/// To `lupdate` the keys are ids: a `tr` needs a class around it, and many marks have none.
constexpr auto Marks =
    "QT_TRID_NOOP=TextKey,QT_TRID_NOOP+=QT_TR_NOOP,QT_TRID_NOOP+=uiText,qsTrId=textKey,qsTrId+=translate";

/// Where each key was found first.
using Keys = QMap<QString, QString>;
/// The texts of a catalogue by key.
using Texts = QMap<QString, QString>;

QString contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// Those of the product, in whatever folder they lie.
QStringList filesLike(const QStringList& names) {
    const QStringList others = {"bench", "build", "demo", "docs", "node_modules", "tests"};
    QStringList files;
    for (const QString& folder : QDir(SOURCE_FOLDER).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QDirIterator each(SOURCE_FOLDER "/" + folder, names, QDir::Files, QDirIterator::Subdirectories);
        while (!others.contains(folder) && each.hasNext()) {
            files << each.next();
        }
    }
    return files;
}

/// What `lupdate` finds, by way of a .po file: its .ts does not quote an id.
Keys markedKeys() {
    const QTemporaryDir folder;
    QFile list(folder.filePath("sources"));
    EXPECT_TRUE(list.open(QIODevice::WriteOnly));
    list.write(filesLike({"*.cpp", "*.h", "*.js"}).join('\n').toUtf8());
    list.close();
    QProcess lupdate;
    lupdate.start(LUPDATE,
                  {"-silent", "-tr-function-alias", Marks, "@" + list.fileName(), "-ts", folder.filePath("keys.po")});
    EXPECT_TRUE(lupdate.waitForFinished()) << lupdate.errorString().toStdString();
    for (const QByteArray& line : lupdate.readAllStandardError().split('\n')) {
        EXPECT_TRUE(line.isEmpty() || line.contains("has no source")) << line.toStdString();
    }
    Keys keys;
    QString key;
    for (const QString& line : contentOf(folder.filePath("keys.po")).split('\n')) {
        if (line.startsWith("#. ts-id ")) {
            key = line.mid(9);
        }
        if (line.startsWith("#: ")) {
            keys.insert(key, line.mid(3));
        }
    }
    return keys;
}

/// Elements of the class "localize" have their text and their title translated.
void collectMarkup(Keys& keys, const QString& file) {
    static const QRegularExpression element(
        R"re(<\w+\b([^>]*\bclass="[^"]*\blocalize\b[^"]*"[^>]*)>(?:<span></span>)?\s*([^<]*))re");
    static const QRegularExpression attribute(R"re(\b(?:title|value)="([^"]*)")re");
    static const QRegularExpression letter("[A-Za-z]");
    for (auto found = element.globalMatch(contentOf(file)); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const bool isChoice = match.captured(0).startsWith("<option");
        QStringList texts = {match.captured(2).simplified()};
        if (!isChoice) {
            texts << attribute.match(match.captured(1)).captured(1);
        }
        for (const QString& key : texts.filter(letter)) {
            keys.insert(key, file);
        }
    }
}

/// The catalogues by language.
QMap<QString, Texts> catalogues() {
    QMap<QString, Texts> all;
    for (const QString& file : filesLike({"zeb4_*.ts"})) {
        Texts& texts = all[QFileInfo(file).baseName().section('_', 1)];
        QXmlStreamReader xml(contentOf(file));
        QString key;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement) {
                continue;
            }
            if (xml.name() == QLatin1String("source")) {
                key = xml.readElementText();
            }
            if (xml.name() == QLatin1String("translation") && xml.attributes().value("type").isEmpty()) {
                EXPECT_FALSE(texts.contains(key)) << file.toStdString() << " has two texts for " << key.toStdString();
                texts.insert(key, xml.readElementText());
            }
        }
        EXPECT_FALSE(xml.hasError()) << file.toStdString() << ": " << xml.errorString().toStdString();
    }
    return all;
}

/// A key of one word that begins small, has an underscore or a capital within is rather a name than an English text.
bool readsLikeAName(const QString& key) {
    static const QRegularExpression name(R"(^([a-z]\S*|\S*_\S*|\S*[a-z][A-Z]\S*)$)");
    return name.match(key).hasMatch();
}

TEST(Texts, StandInEveryLanguageForEveryKeyOfTheSources) {
    const QMap<QString, Texts> languages = catalogues();
    Keys keys = markedKeys();
    for (const QString& file : filesLike({"*.html"})) {
        collectMarkup(keys, file);
    }
    for (const QString& language : languages.keys()) {
        keys.insert(QLocale::languageToString(QLocale(language).language()), "the list of languages");
    }
    for (auto texts = languages.begin(); texts != languages.end(); ++texts) {
        const bool isEnglish = texts.key() == "en";
        for (auto key = keys.begin(); key != keys.end(); ++key) {
            const bool isNeeded = !isEnglish || readsLikeAName(key.key());
            EXPECT_FALSE(isNeeded && texts->value(key.key()).isEmpty())
                << '"' << key.key().toStdString() << "\" of " << key->toStdString() << " has no text in "
                << texts.key().toStdString();
            EXPECT_FALSE(!isNeeded && texts->value(key.key()) == key.key())
                << '"' << key.key().toStdString() << "\" is its own English text without an entry";
        }
        for (const QString& key : texts->keys()) {
            EXPECT_TRUE(keys.contains(key))
                << '"' << key.toStdString() << "\" of " << texts.key().toStdString() << " is asked for by no source";
        }
    }
}

TEST(Texts, AreMarkedWhereTheyReachTheUser) {
    // A literal in the first argument, or what a notice or a failed file tells.
    const QRegularExpression bareInCpp(
        R"re(\b(?:(?:translated?|confirm\w*|warn\w*|alert|info|execProgress|\w+Exception(?: \w+)?)\((?!"zeb4"))re"
        R"re(|uiText\((?!\s*")|tell\(Message|add\(Message|FileError\()[^()";]*(?:Q\w+\()?")re");
    // No literal to a call of the bridge; a key alone, outside of a template, to what `lupdate` reads.
    const QRegularExpression bareInScript(
        R"re(\b(?:alert|warn|info|confirm)\(\s*['"`]|\bcaption: '|\$\{[^}]*\b(?:translate|textKey)\()re"
        R"re(|\b(?:translate|textKey)\((?!'[^']*'\)|[\w.]+(?:\(\))?\)|'p_' \+))re");
    for (const QString& file : filesLike({"*.cpp", "*.h", "*.js"})) {
        const bool isScript = file.endsWith(".js");
        for (auto bare = (isScript ? bareInScript : bareInCpp).globalMatch(contentOf(file)); bare.hasNext();) {
            ADD_FAILURE() << file.toStdString() << ": " << bare.next().captured().toStdString();
        }
    }
}

}  // namespace
