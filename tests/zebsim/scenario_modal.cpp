#include "PageScript.h"
#include "ScenarioDialogs.h"
#include "ScenarioError.h"

#include <QDialog>
#include <QJSEngine>
#include <QQmlEngine>
#include <QVBoxLayout>
#include <QWebView>

#include <gmock/gmock.h>

namespace {

/// What the page of a web dialog says once the dialog stands.
QString wordsOf(QDialog& dialog) {
    ModalWatcher watcher;
    QString words;
    QObject::connect(&watcher, &ModalWatcher::stands, [&words](QDialog* standing) {
        words += PageScript("document.body.textContent").run(ScenarioDialogs::pageOfStanding()).toString();
        standing->reject();
    });
    dialog.exec();
    return words;
}

TEST(ModalDialogs, StandOnceTheirPageHasLoaded) {
    QDialog dialog;
    QVBoxLayout layout(&dialog);
    QWebView view;
    layout.addWidget(&view);
    view.load(QUrl("data:text/html,<body>loaded"));
    EXPECT_EQ(wordsOf(dialog), "loaded");
    EXPECT_EQ(wordsOf(dialog), "loaded") << "and each time they are shown";
    EXPECT_THROW(ScenarioDialogs::pageOfStanding(), ScenarioError) << "none stands now";
}

TEST(ModalDialogs, RunOneFunctionEach) {
    ScenarioDialogs dialogs;
    QJSEngine engine;
    QDialog first;
    engine.globalObject().setProperty("first", engine.newQObject(&first));
    QQmlEngine::setObjectOwnership(&first, QQmlEngine::CppOwnership);
    engine.evaluate("var runs = 0");
    dialogs.expect(engine.evaluate("(function () { runs += 1; first.accept(); })"));
    dialogs.expect(engine.evaluate("(function () { runs += 10; first.reject(); })"));
    QDialog modeless;
    modeless.show();
    EXPECT_EQ(first.exec(), QDialog::Accepted);
    EXPECT_EQ(engine.evaluate("runs").toInt(), 1);
    EXPECT_EQ(first.exec(), QDialog::Rejected);
    EXPECT_EQ(engine.evaluate("runs").toInt(), 11);
    EXPECT_EQ(dialogs.leftOver(), QString());
}

TEST(ModalDialogs, TellWhatAFunctionThrew) {
    ScenarioDialogs dialogs;
    QJSEngine engine;
    QString error;
    QDialog dialog;
    QObject::connect(&dialogs, &ScenarioDialogs::threw, [&](const QJSValue& value) {
        error = value.toString();
        dialog.reject();
    });
    dialogs.expect(engine.evaluate("(function () { throw new Error('mine'); })"));
    dialog.exec();
    EXPECT_EQ(error, "Error: mine");
}

}  // namespace
