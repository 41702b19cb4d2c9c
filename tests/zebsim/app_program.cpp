#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;

struct Outcome {
    int status;
    std::string output;
    std::string errors;
};

/// The built program, started as a user starts it.
class Program : public testing::Test {
protected:
    Outcome run(const QStringList& arguments, const QString& platform = "offscreen") {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", platform);
        environment.remove("DISPLAY");
        environment.remove("WAYLAND_DISPLAY");
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(ZEBSIM_PROGRAM, arguments);
        process.waitForFinished(60000);
        const int status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        return {status, process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
    }
    /// Runs a script on one camera, with preferences of its own.
    Outcome runScript(const char* script) {
        return run({"--rig", "1", "--prefs", prefs, "--scenario", write("my.js", script)});
    }
    QString write(const char* name, const QByteArray& content) {
        QFile file(folder.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return file.fileName();
    }

    QTemporaryDir folder;
    const QString prefs = folder.filePath("prefs.ini");
};

TEST_F(Program, TellsItsUsageWithoutADisplay) {
    const Outcome help = run({"--help"}, "xcb");
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.output, HasSubstr("--scenario"));
    const Outcome wrong = run({"--nonsense"}, "xcb");
    EXPECT_EQ(wrong.status, 2);
    EXPECT_THAT(wrong.errors, AllOf(HasSubstr("nonsense"), HasSubstr("Usage:")));
}

TEST_F(Program, NamesTheFileThatItCannotUse) {
    const QString rig = write("wrong.json", R"({"devices": [{"address": "10.0.0.1", "model": "standard",)"
                                            R"( "heads": [{"name": "A", "rate": "fast"}]}]})");
    const Outcome wrongRig = run({"--rig", rig, "--prefs", prefs});
    EXPECT_EQ(wrongRig.status, 2);
    EXPECT_THAT(wrongRig.errors, AllOf(HasSubstr(rig.toStdString()), HasSubstr("rate")));
    const QString plugin = folder.filePath("none.zeb");
    const Outcome wrongPlugin = run({"--plugin", plugin, "--prefs", prefs});
    EXPECT_EQ(wrongPlugin.status, 2);
    EXPECT_THAT(wrongPlugin.errors, HasSubstr(plugin.toStdString()));
}

TEST_F(Program, ExitsAsTheScenarioTells) {
    EXPECT_EQ(runScript("check(zeb.keys().length === 1, 'one camera')").status, 0);
    EXPECT_EQ(runScript("check(false, 'never')").status, 1);
    const Outcome thrown = runScript("\n\nnothing.here();");
    EXPECT_EQ(thrown.status, 1);
    EXPECT_THAT(thrown.errors, HasSubstr("my.js:3: "));
}

TEST_F(Program, KeepsADamagedPreferenceFileAsideAndSaysSo) {
    write("prefs.ini", "[wren\nnot = \"an INI file\n");
    const Outcome outcome = runScript(R"js(
        let messages = [];
        while (messages.length === 0) {
            zeb.wait(1);
            messages = zeb.messages();
        }
        print(messages[0].text);
        check(zeb.pref('wren/table/interval') === 500, 'factory values are used');)js");
    EXPECT_EQ(outcome.status, 0) << outcome.output << outcome.errors;
    EXPECT_THAT(outcome.output, HasSubstr(prefs.toStdString()));
    EXPECT_EQ(QDir(folder.path()).entryList({"prefs.ini.*"}).size(), 1);
}

TEST_F(Program, ClosesTheTableWithoutAQuestionWhenItLeaves) {
    const Outcome left = runScript("check(zeb.open(), 'open'); zeb.window('140,90,1230,500');");
    EXPECT_EQ(left.status, 0) << left.output << left.errors;
    const Outcome later = runScript(
        "check(zeb.pref('wren/ready') === true, 'the host closed it');"
        "check(zeb.pref('wren/table/x') === 140 && zeb.pref('wren/table/h') === 500, 'its place is stored');");
    EXPECT_EQ(later.status, 0) << later.output;
}

}  // namespace
