#include "Course.h"
#include "FaultOperations.h"
#include "StatusFlags.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

QString contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// What the sources of `rooms` name where an operation begins.
QSet<QString> inSources(const QStringList& rooms, const char* begin) {
    QSet<QString> names;
    for (const QString& room : rooms) {
        QDirIterator files(QStringLiteral(SOURCE_FOLDER "/zebsim/") + room, {"*.cpp", "*.h"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString text = contentOf(files.next());
            for (auto found = QRegularExpression(begin).globalMatch(text); found.hasNext();) {
                names << found.next().captured(1);
            }
        }
    }
    return names;
}

TEST(FaultOperations, NameEveryOperationThatCanFailAndStandInTheManual) {
    const struct {
        const char* whose;
        QSet<QString> names;
        QSet<QString> sources;
    } rows[] = {
        {"a camera", cameraOperations(),
         inSources({"camera", "host", "recording", "saving"},
                   R"re((?<!calls\.)\b(?:command|commandConnected|ask\w*)\("(\w+)")re")},
        {"a Sync Hub", hubOperations(), inSources({"signals"}, R"re((?:(?<!calls\.)ask\w*\(|m_key, )"(\w+)")re")},
        {"the host", hostOperations(),
         inSources({"host", "signals", "app"},
                   R"re((?:(?:calls(?:\(\))?\.ask|pluginBox|Prefs\.get)\("|(?<!note\()"Zeb\w+::)(\w+)")re")},
    };
    const QString manual = contentOf(QStringLiteral(SOURCE_FOLDER "/docs/scenarios.md"));
    const QStringList states = StatusFlags().names();
    QSet<QString> told{states.begin(), states.end()};
    for (const auto& row : rows) {
        EXPECT_EQ((row.sources - row.names).values(), QStringList()) << "not on the list of " << row.whose;
        EXPECT_EQ((row.names - row.sources).values(), QStringList()) << "nowhere in the sources of " << row.whose;
        told += row.names;
    }
    for (const QString& name : told) {
        EXPECT_TRUE(manual.contains(QRegularExpression("\\b" + name + "\\b"))) << name.toStdString();
    }
}

}  // namespace
