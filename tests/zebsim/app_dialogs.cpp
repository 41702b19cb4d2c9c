#include "Camera.h"
#include "CameraWindows.h"
#include "CommandLine.h"
#include "ModalWatcher.h"
#include "PageScript.h"
#include "ParallelRows.h"
#include "PreferencePages.h"
#include "ProgressWait.h"
#include "RigFile.h"
#include "ScenarioDialogs.h"
#include "ScenarioError.h"
#include "Simulator.h"
#include "Until.h"
#include "ViewerWindow.h"
#include "ZebPrefsDialog.h"
#include "ZebSupportFile.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFutureWatcher>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QWebView>

#include <gtest/gtest.h>

#include <future>

namespace {

class Dialogs : public testing::Test {
protected:
    Dialogs() { simulator.window().show(); }

    /// What to do with the dialog that stands next.
    void next(const std::function<void(QDialog&)>& work) {
        connection = QObject::connect(&watcher, &ModalWatcher::stands, [this, work](QDialog* dialog) {
            QObject::disconnect(connection);
            work(*dialog);
        });
    }
    QVariant pref(const char* key) const { return simulator.host().prefs().value(key); }

    QTemporaryDir folder;
    const CommandLine line = CommandLine::parse({"zebsim", "--rig", "2", "--prefs", folder.filePath("p.ini")});
    mutable Simulator simulator{line};
    SimHost& host = simulator.host();
    ModalWatcher watcher;
    QMetaObject::Connection connection;
};

TEST_F(Dialogs, StorePreferencesOfEachKind) {
    host.prefs().setValue("display/ShutterSpeed", 7);
    next([&](QDialog& dialog) {
        EXPECT_TRUE(host.isPrefDialogOpening());
        dialog.findChild<QCheckBox*>("recording/AutoDownload")->click();
        dialog.findChild<QSpinBox*>("wren/table/interval")->setValue(900);
        QComboBox& style = *dialog.findChild<QComboBox*>("env/style");
        style.setCurrentIndex(style.findData("dark"));
        EXPECT_EQ(pref("wren/table/interval"), 500) << "not yet";
        dialog.accept();
    });
    EXPECT_EQ(host.getPrefsDialog()->exec(), QDialog::Accepted);
    EXPECT_EQ(pref("recording/AutoDownload"), false);
    EXPECT_EQ(pref("wren/table/interval"), 900);
    EXPECT_EQ(pref("env/style"), "dark");
    EXPECT_EQ(pref("display/ShutterSpeed"), 7) << "no choice stands for it, and nobody has touched it";
    EXPECT_FALSE(host.isPrefDialogOpening());
}

TEST_F(Dialogs, ShowEveryPreferenceAsTheHostAnswersIt) {
    const auto shownBy = [](QWidget& editor) {
        if (auto* choice = qobject_cast<QComboBox*>(&editor)) {
            return choice->currentData();
        }
        return editor.metaObject()->userProperty().read(&editor);
    };
    int fields = 0;
    next([&](QDialog& dialog) {
        for (const PreferencePage& page : preferencePages()) {
            for (const PreferenceField& field : page.fields) {
                const QVariant shown = shownBy(*dialog.findChild<QWidget*>(field.key));
                const QVariant answered = host.getPref(field.key);
                EXPECT_STREQ(shown.typeName(), answered.typeName()) << field.key.toStdString();
                EXPECT_EQ(shown, answered) << field.key.toStdString();
                ++fields;
            }
        }
        dialog.reject();
    });
    host.getPrefsDialog()->exec();
    EXPECT_GE(fields, 15);
}

TEST_F(Dialogs, ShowAddressesAndRefuseOneThatIsNone) {
    host.cameras().find(2)->change({{"name", "<i>x</i>"}, {"connected", true}, {"slowLink", true}});
    next([&](QDialog& dialog) {
        const auto* table = dialog.findChild<QTableWidget*>("cameras");
        QStringList row;
        for (int column = 0; column < 4; ++column) {
            row << table->item(1, column)->text();
        }
        EXPECT_EQ(row, QStringList({"192.168.0.12", "<i>x</i>", "standard", "Connected, slow link"}));
        QLineEdit& search = *dialog.findChild<QLineEdit*>("cameraconnection/SearchIP");
        search.setText("192.168.300");
        dialog.accept();
        EXPECT_TRUE(dialog.isVisible());
        search.setText("10.0.7");
        dialog.accept();
        EXPECT_FALSE(dialog.isVisible());
    });
    host.openPrefsEthernetSettings();
    EXPECT_EQ(pref("cameraconnection/SearchIP"), "10.0.7");
}

TEST_F(Dialogs, GiveACameraItsNameAndComment) {
    const auto edit = [&](const std::function<void(QDialog&)>& end) {
        next([&](QDialog& dialog) {
            dialog.findChild<QLineEdit*>("name")->setText("Gate");
            dialog.findChild<QPlainTextEdit*>("comment")->setPlainText("left\nlens");
            end(dialog);
        });
        host.docManager().editDoc(1);
    };
    const auto name = [&] { return host.cameras().find(1)->name().toStdString(); };
    edit([](QDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(name(), "Camera 1");
    edit([](QDialog& dialog) { dialog.accept(); });
    EXPECT_EQ(name(), "Gate");
    EXPECT_EQ(host.cameras().find(1)->get(&CameraState::comment), "left{Separator}lens");
    edit([&](QDialog& dialog) {
        host.setRig(standardRig(1));
        EXPECT_FALSE(dialog.isVisible());
        dialog.reject();
    });
    EXPECT_EQ(name(), "Camera 1") << "another camera has the key now";
    edit([&](QDialog& dialog) {
        host.docManager().deleteAllDocs(0, 0);
        dialog.accept();
    });
    host.cameras().search({});
    EXPECT_EQ(name(), "Camera 1") << "it was forgotten";
    edit([&](QDialog& dialog) {
        host.faults().plant(1, "*", {{}, 0, true});
        simulator.window().images().showNow();
        EXPECT_FALSE(dialog.isVisible()) << "it has vanished";
        dialog.reject();
    });
}

TEST_F(Dialogs, NameThePluginInTheAboutBox) {
    QString text;
    next([&](QDialog& dialog) {
        text = dialog.findChild<QLabel*>("text")->text();
        dialog.accept();
    });
    host.openAboutDialog();
    EXPECT_TRUE(text.contains(QLatin1String("Qt 5.15")) && text.contains(QLatin1String("Plug-in: none")))
        << text.toStdString();
}

TEST_F(Dialogs, WaitForAWorkerThatNobodyCanLeave) {
    QFutureInterface<void> work;
    work.reportStarted();
    QFutureWatcher<void> watched;
    watched.setFuture(work.future());
    bool stood = false;
    next([&](QDialog& dialog) {
        dialog.close();
        stood = dialog.isVisible() && !watched.isFinished();
        EXPECT_EQ(dialog.findChild<QLabel*>()->text(), "Saving <b>...");
        work.reportFinished();
    });
    host.execProgress("Saving <b>...", watched);
    EXPECT_TRUE(stood && watched.isFinished());
    EXPECT_EQ(ModalWatcher::standing(), nullptr);
    host.execProgress("again", watched);
}

TEST_F(Dialogs, NameWhoHasNotAnsweredAndLeaveOutWhoWasNotReached) {
    std::promise<void> answer;
    ParallelRows rows(
        12, [answered = answer.get_future().share()](int) { answered.wait(); }, 10);
    ASSERT_TRUE(until([&] { return rows.waiting().size() == 2; }));
    const QStringList names{"<b>", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l"};
    QTimer look;
    next([&](QDialog& dialog) {
        const auto* label = dialog.findChild<QLabel*>();
        EXPECT_EQ(label->text(), "No answer yet: <b>, b, c, d,\ne, f, g, h and 4 more");
        dialog.findChild<QPushButton*>()->click();
        QObject::connect(&look, &QTimer::timeout, label, [&, label] {
            if (dialog.findChild<QPushButton*>() == nullptr && label->text().endsWith("and 2 more")) {
                look.stop();
                EXPECT_TRUE(dialog.isVisible()) << "the others still take the command";
                answer.set_value();
            }
        });
        look.start(10);
    });
    waitWithProgress(host, rows, names);
    EXPECT_EQ(rows.leftOut(), (std::vector<int>{10, 11}));
    EXPECT_EQ(ModalWatcher::standing(), nullptr);
}

TEST_F(Dialogs, GivePicturesAndTheLogToTheSupportFile) {
    qInfo("a line of the log");
    ZebSupportFile file;
    host.prepareSupportFile(file);
    EXPECT_TRUE(file.files.value("operation.log").contains("a line of the log"));
    EXPECT_FALSE(QImage::fromData(file.files.value("viewer.png")).isNull());
    EXPECT_FALSE(file.files.contains("image.png")) << "no camera is current";
    host.cameras().find(1)->change({{"selected", true}, {"connected", true}});
    simulator.window().images().showNow();
    host.prepareSupportFile(file);
    EXPECT_EQ(QImage::fromData(file.files.value("image.png")).size(), QSize(1024, 1024));
}

TEST(ModalDialogs, StandOnceTheirPageHasLoaded) {
    QDialog dialog;
    QVBoxLayout layout(&dialog);
    QWebView view;
    layout.addWidget(&view);
    view.load(QUrl("data:text/html,<body>loaded"));
    ModalWatcher watcher;
    QString words;
    QObject::connect(&watcher, &ModalWatcher::stands, [&words](QDialog* standing) {
        words += PageScript("document.body.textContent").run(ScenarioDialogs::pageOfStanding()).toString();
        standing->reject();
    });
    dialog.exec();
    EXPECT_EQ(words, "loaded");
    dialog.exec();
    EXPECT_EQ(words, "loadedloaded") << "and each time they are shown";
    EXPECT_THROW(ScenarioDialogs::pageOfStanding(), ScenarioError) << "none stands now";
}

}  // namespace
