#include "CommandLine.h"
#include "ScenarioRunner.h"
#include "Simulator.h"
#include "ViewerWindow.h"

#include <QDialog>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <gmock/gmock.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;

struct Outcome {
    int status;
    std::string output;
    std::string errors;
};

class Runner : public testing::Test {
protected:
    Outcome run(const char* script, int timeout = 60) {
        QFile file(folder.filePath("my.js"));
        file.open(QIODevice::WriteOnly);
        file.write(script);
        file.close();
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = ScenarioRunner(simulator, timeout).run(file.fileName());
        return {status, testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
    }

    QTemporaryDir folder;
    CommandLine line = CommandLine::parse({"zebsim", "--rig", "3", "--prefs", folder.filePath("p.ini")});
    Simulator simulator{line};
};

TEST_F(Runner, TellsByItsStatusWhetherAllChecksHeld) {
    const Outcome good =
        run("print('hello'); print([1, {a: 'x'}]); check(1 < 2, 'small'); zeb.status('IsSaving', true)");
    EXPECT_EQ(good.status, 0);
    EXPECT_TRUE(simulator.host().saver().isSaving());
    EXPECT_EQ(good.output, "hello\n[1,{\"a\":\"x\"}]\nok: small\n");
    const Outcome bad = run("\nfunction f(x) {\n  check(x, 'held');\n}\nf(0);\ncheck(true, 'after');\n");
    EXPECT_EQ(bad.status, 1);
    EXPECT_THAT(bad.output, AllOf(HasSubstr("my.js:3: held"), HasSubstr("ok: after")));
}

TEST_F(Runner, MissesADialogThatNeverCame) {
    EXPECT_THAT(run("zeb.modal(() => check(true, 'seen'))").output, HasSubstr("FAILED: a function still waits"));
    EXPECT_THAT(run("zeb.answer('ok', 'no', 1, 2, 3, 4)").output,
                HasSubstr("FAILED: no box took the answer ok, no, 1, 2, 3, 4"));
}

TEST_F(Runner, PrintsTheLineOfAScriptThatThrows) {
    struct Case {
        const char* script;
        const char* words;
    };
    for (const Case& c :
         {Case{"var a;\n\na.b.c;", "my.js:3: TypeError"},
          Case{"\nthrow new Error('mine');", "my.js:2: Error: mine"},
          Case{"throw 'bare text'", "bare text"},
          Case{"\nlet x = = 3;", "my.js:2: SyntaxError"},
          Case{"\nzeb.page('1')", "my.js:2: Error: the table was never open"},
          Case{"\nzeb.open()", "my.js:2: Error: no plug-in is loaded"},
          Case{"zeb.mode('night')", "live, memory and file, not \"night\""},
          Case{"zeb.status('IsWarm', true)", "no state \"IsWarm\""},
          Case{"zeb.setCamera(1, {colour: 3})", "camera 1, colour"},
          Case{"zeb.setCamera(9, {rate: 3})", "no camera 9"},
          Case{"zeb.fault(1, '*', {angry: true})", "not angry"},
          Case{"zeb.fault(9, '*', {gone: true})", "no camera 9"},
          Case{"zeb.fault(1, 'setRecordRat', {delay: 1})", "a camera has no operation \"setRecordRat\""},
          Case{"zeb.fault('host', 'isSaving', {delay: 1})", "the host has no operation \"isSaving\" that can fail"},
          Case{"zeb.fault('host', 'getPref', {gone: true})", "the host can't be gone"},
          Case{"zeb.hub('10.0.0.1')", "there is no Sync Hub 10.0.0.1"},
          Case{"zeb.rig('sync'); zeb.setHub('192.168.0.61', {role: 7})", "Sync Hub 192.168.0.61, role: 0 for"},
          Case{"zeb.rig('sync'); zeb.fault('192.168.0.61', 'connect', {delay: 1})",
               "a Sync Hub has no operation \"connect\""},
          Case{"\nzeb.visa({})", "my.js:2: Error: there is no scripted VISA library"},
          Case{"zeb.rig('none.json')", "none.json"},
          Case{"zeb.speed(0)", "above 0"},
          Case{"zeb.modal('text')", "takes a function"},
          Case{"zeb.signal('signalRecord')", "no plug-in"}}) {
        const Outcome outcome = run(c.script);
        EXPECT_EQ(outcome.status, 1) << c.script;
        EXPECT_THAT(outcome.errors, HasSubstr(c.words)) << c.script;
    }
    EXPECT_EQ(ScenarioRunner(simulator, 1).run(folder.filePath("missing.js")), 1);
}

TEST_F(Runner, EndsAScriptThatHangs) {
    for (const char* script :
         {"while (true) {}", "zeb.wait(1e9); print('on')", "while (true) { try { zeb.wait(1e9) } catch (e) {} }"}) {
        const Outcome outcome = run(script, 1);
        EXPECT_EQ(outcome.status, 1) << script;
        EXPECT_EQ(outcome.output, "") << script;
        EXPECT_THAT(outcome.errors, HasSubstr("more than 1 seconds")) << script;
    }
}

TEST_F(Runner, ClosesADialogThatNobodyAnswersInTime) {
    QDialog dialog;
    int answer = -1;
    QTimer::singleShot(0, &dialog, [&] { answer = dialog.exec(); });
    EXPECT_EQ(run("zeb.wait(1e9)", 1).status, 1);
    EXPECT_EQ(answer, QDialog::Rejected);
}

}  // namespace
