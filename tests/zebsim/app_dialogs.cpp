#include "Camera.h"
#include "CameraWindows.h"
#include "CommandLine.h"
#include "Course.h"
#include "DialogRun.h"
#include "Files.h"
#include "GUI_AddNumberDialog.h"
#include "HostPages.h"
#include "ModalWatcher.h"
#include "NameFamilies.h"
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
    Dialogs() {
        initHostPages();
        simulator.window().show();
    }

    /// What to do with the dialog that stands next.
    void next(const std::function<void(QDialog&)>& work) {
        connection = QObject::connect(&watcher, &ModalWatcher::stands, [this, work](QDialog* dialog) {
            QObject::disconnect(connection);
            work(*dialog);
        });
    }
    /// What a script says in the page of the dialog that stands.
    static QString page(const QString& script) {
        return PageScript(script).run(ScenarioDialogs::pageOfStanding()).toVariant().toString();
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
            page("byId('name').value = 'Gate'; byId('comment').value = 'left\\nlens'");
            end(dialog);
        });
        host.docManager().editDoc(1);
    };
    const auto name = [&] { return host.cameras().find(1)->name().toStdString(); };
    edit([&](QDialog&) { page("byId('cancel').click()"); });
    EXPECT_EQ(name(), "Camera 1");
    edit([&](QDialog&) { page("byId('ok').click()"); });
    EXPECT_EQ(name(), "Gate");
    EXPECT_EQ(host.cameras().find(1)->get(&CameraState::comment), "left{Separator}lens");
    edit([&](QDialog& dialog) {
        host.setRig(standardRig(1));
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(name(), "Camera 1") << "another camera has the key now";
    edit([&](QDialog&) {
        host.docManager().deleteAllDocs(0, 0);
        page("byId('ok').click()");
    });
    host.cameras().search({});
    EXPECT_EQ(name(), "Camera 1") << "it was forgotten";
    edit([&](QDialog& dialog) {
        host.faults().plant(1, "*", {{}, 0, true});
        simulator.window().images().showNow();
        EXPECT_FALSE(dialog.isVisible()) << "it has vanished";
    });
}

TEST_F(Dialogs, AddACameraThatAnswers) {
    host.docManager().deleteAllDocs(0, 0);
    host.faults().plant(2, "*", {{}, 0, true});
    const auto add = [&](const QString& address, const QString& name) {
        QString told;
        next([&](QDialog& box) {
            told = box.property("text").toString();
            box.reject();
        });
        page(QString("byId('address').value = '%1'; byId('name').value = '%2'; byId('ok').click()").arg(address, name));
        QObject::disconnect(connection);
        return told.toStdString();
    };
    const auto run = [&](const std::function<void(QDialog&)>& work) {
        next(work);
        simulator.window().findChild<QAction*>("addCamera")->trigger();
    };
    run([&](QDialog& dialog) {
        EXPECT_EQ(add("192.168.0", ""), "An address is four numbers from 0 to 255 with dots between, as 192.168.0.10.");
        EXPECT_EQ(add("192.168.0.12", ""), "No camera answers at 192.168.0.12.") << "it has gone";
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(add(" 192.168.0.11 ", ""), "");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(host.cameras().all().size(), 1);
    EXPECT_EQ(host.cameras().find(1)->name(), "Camera 1") << "it keeps the name that it has";
    run([&](QDialog& dialog) {
        EXPECT_EQ(add("192.168.0.11", "Gate"), "Camera 1 at 192.168.0.11 is listed already.");
        dialog.reject();
    });
    host.docManager().deleteAllDocs(0, 0);
    run([&](QDialog&) { add("192.168.0.11", "Gate"); });
    EXPECT_EQ(host.cameras().find(1)->name(), "Gate");
    Rig rig = standardRig(1);
    rig.devices.first().heads.append(rig.devices.first().heads.first());
    rig.devices.first().heads.last().comment = "own";
    host.setRig(rig);
    host.docManager().deleteAllDocs(0, 0);
    run([&](QDialog&) {
        page("byId('comment').value = 'left\\nlens'");
        add("192.168.0.11", "Pair");
    });
    ASSERT_EQ(host.cameras().all().size(), 2) << "both heads";
    const auto told = [this](DOCKEY key) {
        const Camera& head = *host.cameras().find(key);
        return QString(head.name() + ": " + head.get(&CameraState::comment)).toStdString();
    };
    EXPECT_EQ(told(1), "Pair: left{Separator}lens");
    EXPECT_EQ(told(2), "Camera 1: own") << "what is typed is the first one's";
}

TEST_F(Dialogs, OfferNamesForACamera) {
    QByteArray list = ",Gate,<b>Ramp,\n<i>roof</i>,North,South\n";
    for (int i = 0; i < 10000; ++i) {
        list += "many,n" + QByteArray::number(i) + '\n';
    }
    write(folder.filePath("names.csv"), list);
    host.prefs().setValue("usercustom/cameraNameFilePath", folder.filePath("names.csv"));
    const auto offered = [&](const char* typed) {
        page(QString("byId('name').value = '%1'; $('#name').nameList('search')").arg(typed));
        return page("$('.ui-autocomplete li:visible').get().map(line => line.textContent).join('|')");
    };
    next([&](QDialog& dialog) {
        EXPECT_EQ(offered("r"), "bRamp|<i>roof</i>|North");
        EXPECT_EQ(offered("SOUTH"), "<i>roof</i>|South");
        EXPECT_EQ(offered("no such"), "");
        EXPECT_EQ(offered("n9").section('|', 0, 1) + offered("n9").section('|', -1), "many|n9and 1011 more");
        EXPECT_EQ(page("$('.ui-autocomplete').find('i, b').length"), "0");
        EXPECT_EQ(page("prefs.getDevice === undefined"), "false");
        dialog.reject();
    });
    host.docManager().editDoc(1);
}

TEST_F(Dialogs, ChooseTheDigitsOfNumbers) {
    const auto choose = [](const char* list, int digits) {
        return QString("byId('%1').value = %2; byId('%1').dispatchEvent(new Event('change'))").arg(list).arg(digits);
    };
    const QString automatic = "byId('auto').click()";
    const struct {
        const char* what;
        int slot;
        QString act;
        const char* preview;
        const char* stored;
    } cases[] = {
        {"by hand", 0, choose("camera", 3) + ';' + choose("session", 2), "C001S01", "camera=3 head=0 session=2"},
        {"as many as the cameras need", 0, automatic, "C01H1S01", "camera=2 head=1 session=2"},
        {"by hand again, as before", 0, "byId('manual').click()", "C001S01", "camera=3 head=0 session=2"},
        {"of a conversion the session alone", 5, choose("session", 4), "S0001", "camera=2 head=1 session=4"},
        {"of what has none", 12, choose("session", 4), "S0001", ""},
        {"of what none is read of", 9, choose("session", 4), "S0001", "camera=0 head=0 session=3"},
    };
    for (const auto& c : cases) {
        next([&](QDialog&) {
            page(c.act);
            EXPECT_EQ(page("byId('preview').textContent"), c.preview) << c.what;
            page("byId('ok').click()");
        });
        runDialog(host, new GUI_AddNumberDialog(&host, c.slot, 12, 2, &simulator.window()));
        QStringList stored;
        for (const char* number : {"camera", "head", "session"}) {
            const QVariant digits = host.prefs().value(slotKey(c.slot) + "addnumber" + number + "nodigits");
            stored += digits.isValid() ? QStringList(number + QString('=') + digits.toString()) : QStringList();
        }
        EXPECT_EQ(stored.join(' '), c.stored) << c.what;
    }
    next([&](QDialog&) { page(choose("session", 9) + ";byId('cancel').click()"); });
    runDialog(host, new GUI_AddNumberDialog(&host, 0, 12, 2, &simulator.window()));
    EXPECT_EQ(pref("export/groupdiraddnumbersessionnodigits"), 2);
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
