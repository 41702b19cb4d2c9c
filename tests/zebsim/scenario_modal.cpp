#include "PageScript.h"
#include "ScenarioDialogs.h"
#include "ScenarioError.h"

#include <QDialog>
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

}  // namespace
