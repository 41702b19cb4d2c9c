#include "APP_ConcurrentException.h"
#include "DOC_ReadFileException.h"
#include "DOC_WriteFileException.h"
#include "OperationEventHandler.h"
#include "ProbeBridge.h"
#include "TraceScope.h"
#include "UTL_Exception.h"

#include <QtConcurrent>

#include <gtest/gtest.h>

namespace {

struct LogCase {
    const char* sentence;
    std::function<void()> act;
    QStringList lines;
};

void expectLines(const QList<LogCase>& cases) {
    Course course;
    for (const LogCase& row : cases) {
        row.act();
        EXPECT_EQ(course.take().join('\n').toStdString(), row.lines.join('\n').toStdString()) << row.sentence;
    }
}

TEST(LogLines, ScopesTellNameAndArguments) {
    TestHost test;
    ProbeBridge bridge(&test.host);
    expectLines({
        {"a scope without arguments",
         [] { TraceScope scope("A::b"); },
         {"info: [ENTER] \"A::b\" \"\"", "info: [LEAVE] \"A::b\""}},
        {"arguments are joined and trimmed",
         [] {
             TraceScope scope("A::b", {{"key", 3}, {"text", " x "}});
         },
         {"info: [ENTER] \"A::b\" \"[key:3] [text: x ]\"", "info: [LEAVE] \"A::b\""}},
        {"a trace scope tells an invalid key by a word",
         [] {
             TraceScope scope("A::b", {{"docKey", 0xFFFFFFFFU}, {"other docKey", 4294967295U}});
         },
         {"info: [ENTER] \"A::b\" \"[docKey:Invalid] [other docKey:Invalid]\"", "info: [LEAVE] \"A::b\""}},
        {"an operation tells the number",
         [&] {
             OperationEventHandler scope(bridge, "A::b", {{"docKey", 0xFFFFFFFFU}});
         },
         {"info: [ENTER] \"A::b\" \"[docKey:4294967295]\"", "pause", "updateUI 63 true", "resume",
          "info: [LEAVE] \"A::b\""}},
        {"quotes and line feeds cannot forge a line",
         [] {
             TraceScope scope("A::b", {{"name", "x\"\n[LEAVE]"}});
         },
         {"info: [ENTER] \"A::b\" \"[name:x\\\"\\n[LEAVE]]\"", "info: [LEAVE] \"A::b\""}},
    });
}

TEST(LogLines, UserOperations) {
    TestHost test;
    ProbeBridge bridge(&test.host);
    expectLines({
        {"the id tells the element, and the class is dropped",
         [&] { bridge.userOperationLogWebView("qrc:/a.html", "change", "select", "rate", "list", 2000); },
         {"info: [USER] \"[URL:qrc:/a.html] [ID:rate] [Control:select] [Operation:change] [Value:2000] \""}},
        {"the class tells an element without an id",
         [&] { bridge.userOperationLogWebView("u", "click", "Button", "", "big red", QVariant()); },
         {"info: [USER] \"[URL:u] [Class:big red] [Control:Button] [Operation:click] [Value:] \""}},
        {"without either the id is empty",
         [&] { bridge.userOperationLogWebView("u", "click", "Button", "", "", true); },
         {"info: [USER] \"[URL:u] [ID:] [Control:Button] [Operation:click] [Value:true] \""}},
        {"an error of the page",
         [&] { bridge.userOperationErrorLog("it broke"); },
         {"critical: [USER][ERROR] \"it broke\""}},
        {"texts of the page by level",
         [&] {
             bridge.log("nothing");
             bridge.debugLog("nothing");
             bridge.infoLog("good");
             bridge.errorLog("bad");
         },
         {"info: \"good\"", "critical: \"bad\""}},
    });
}

TEST(LogLines, ExceptionsWriteOnceWhenTheyAreMade) {
    expectLines({
        {"an empty message", [] { APP_Exception(""); }, {"critical: \"APP_Exception:[message:] [errorCode:0] \""}},
        {"kinds without a line of their own",
         [] {
             DOC_Exception("gone", 3);
             UTL_Exception("odd");
         },
         {"critical: \"APP_Exception:[message:gone] [errorCode:3] \"",
          "critical: \"APP_Exception:[message:odd] [errorCode:0] \""}},
        {"a file adds its line behind that of its base",
         [] { DOC_ReadFileException("/a b"); },
         {"critical: \"APP_Exception:[message:File read failed.] [errorCode:1] \"",
          "critical: \"DOC_FileException:[message:File read failed.] [path:/a b] [errorCode:1] \""}},
        {"writing",
         [] { DOC_WriteFileException("/c"); },
         {"critical: \"APP_Exception:[message:File write failed.] [errorCode:2] \"",
          "critical: \"DOC_FileException:[message:File write failed.] [path:/c] [errorCode:2] \""}},
        {"copies are silent, on a worker's way back too",
         [] {
             QFuture<void> work =
                 QtConcurrent::run([] { throw APP_ConcurrentException(APP_Exception(QStringLiteral("保存"), 7)); });
             try {
                 work.waitForFinished();
                 ADD_FAILURE() << "the exception was lost";
             } catch (const APP_ConcurrentException& e) {
                 const APP_Exception& inner = e.inner();
                 EXPECT_STREQ(inner.what(), "保存");
                 EXPECT_EQ(inner.errorCode(), 7);
             }
         },
         {"critical: \"APP_Exception:[message:保存] [errorCode:7] \""}},
    });
}

}  // namespace
