#include "CommandLine.h"

#include <gmock/gmock.h>

namespace {

CommandLine parse(const char* arguments) {
    return CommandLine::parse(QString::fromUtf8(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

TEST(CommandLine, TakesAllItsOptions) {
    const CommandLine line = parse(
        "zebsim --rig my.json --prefs p.ini --scenario s.js --timeout 7 --plugin w.zeb --style dark --lang ja "
        "--scripted-visa --no-table");
    EXPECT_EQ(line.printout, QString());
    EXPECT_EQ(line.rig, QStringLiteral("my.json"));
    EXPECT_EQ(line.cameraCount, 0);
    EXPECT_EQ(line.prefs, QStringLiteral("p.ini"));
    EXPECT_EQ(line.scenario, QStringLiteral("s.js"));
    EXPECT_EQ(line.scenarioTimeout, 7);
    EXPECT_EQ(line.plugin, QStringLiteral("w.zeb"));
    EXPECT_EQ(line.style, QStringLiteral("dark"));
    EXPECT_EQ(line.language, QStringLiteral("ja"));
    EXPECT_FALSE(line.openTable);
    EXPECT_TRUE(line.scriptedVisa);
    const CommandLine brief = parse("zebsim --rig 64");
    EXPECT_EQ(brief.cameraCount, 64);
    EXPECT_TRUE(brief.openTable);
    EXPECT_FALSE(brief.scriptedVisa);
}

TEST(CommandLine, NamesAMistakeAndTellsTheUsage) {
    struct Case {
        const char* arguments;
        const char* words;
    };
    for (const Case& c :
         {Case{"zebsim --wrong", "Unknown option 'wrong'"}, Case{"zebsim a.json", "argument 'a.json'"},
          Case{"zebsim --style blue", "light or dark, not 'blue'"}, Case{"zebsim --lang xx", "or ja, not 'xx'"},
          Case{"zebsim --rig 0", "cameras, not 0"}, Case{"zebsim --rig -3", "cameras, not -3"},
          Case{"zebsim --timeout soon", "not 'soon'"}, Case{"zebsim --rig", "Missing value"}}) {
        const CommandLine line = parse(c.arguments);
        EXPECT_EQ(line.exitStatus, 2) << c.arguments;
        EXPECT_THAT(line.printout.toStdString(),
                    testing::AllOf(testing::HasSubstr(c.words), testing::HasSubstr("Usage:")))
            << c.arguments;
    }
}

}  // namespace
