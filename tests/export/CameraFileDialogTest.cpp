#include "Files.h"
#include "GUI_CameraFileDialog.h"
#include "Until.h"
#include "support/FaultChoice.h"
#include "support/TestHost.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

using Act = std::function<void(GUI_CameraFileDialog&)>;

/// Eight cameras that are connected: 3 and 4 are heads of one device, 5 and 8 have no presets, 7 starts anew for one.
class CameraFileDialog : public testing::Test, protected TestHost {
protected:
    CameraFileDialog() : TestHost(readRig("eight-mixed")) {
        connectAll();
        QDir(folder.path()).mkpath("sub");
        write(file, "{}");
        calls();
    }

    void connectAll() {
        host.faults().clear();
        host.setRig(readRig("eight-mixed"));
        for (Camera* each : host.cameras().all()) {
            each->change({{"connected", true}});
        }
    }

    /// The user does `act` as soon as it stands, and leaves it if it still does then. The result.
    int run(const Act& act) {
        window = new QWidget;
        dialog = new GUI_CameraFileDialog(&host, window, "Device Open", folder.path());
        QTimer::singleShot(0, dialog, [&] {
            act(*dialog);
            if (dialog && dialog->isVisible()) {
                dialog->reject();
            }
        });
        const int result = dialog->exec();
        delete window;
        return result;
    }
    static void type(GUI_CameraFileDialog& dialog, const QString& text) {
        auto* field = dialog.findChild<QLineEdit*>("fileNameEdit");
        // Without the focus Qt completes what is typed.
        EXPECT_TRUE(until([field] { return field->hasFocus(); }));
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    /// Presses a button of the row that is that of the camera's name, and OK.
    Act load(const QMap<QString, QString>& chosen) {
        return [this, chosen](GUI_CameraFileDialog& shown) {
            QTest::keyClick(shown.findChild<QCheckBox*>(), Qt::Key_Space);
            for (auto each = chosen.begin(); each != chosen.end(); ++each) {
                for (QRadioButton* button : row(shown, each.key())->findChildren<QRadioButton*>()) {
                    if (button->text() == each.value()) {
                        QTest::keyClick(button, Qt::Key_Space);
                    }
                }
            }
            QTest::keyClick(shown.findChild<QListWidget*>(), Qt::Key_Return);
        };
    }
    static QWidget* row(const GUI_CameraFileDialog& shown, const QString& name) {
        for (QLabel* label : shown.findChild<QListWidget*>()->findChildren<QLabel*>()) {
            if (label->text() == name) {
                return label->parentWidget();
            }
        }
        return nullptr;
    }
    QStringList rows(const GUI_CameraFileDialog& shown) {
        QStringList texts;
        const auto* list = shown.findChild<QListWidget*>();
        for (int i = 0; i < list->count(); ++i) {
            const QWidget* widget = list->itemWidget(list->item(i));
            QStringList words;
            for (const QLabel* label : widget->findChildren<QLabel*>()) {
                if (!label->text().isEmpty()) {
                    words += label->text();
                    EXPECT_EQ(label->textFormat(), Qt::PlainText);
                }
            }
            for (const QRadioButton* button : widget->findChildren<QRadioButton*>()) {
                words += button->text() + (button->isChecked() ? "*" : "") + (button->isEnabled() ? "" : "-");
            }
            texts += words.join('|');
        }
        return texts;
    }
    QStringList presetCalls() {
        return calls("markReb|CameraPreset|refreshAfter|disconnectDoc|DocEdit|restartLive|::pause|::resume");
    }

    const QString file = folder.filePath("good.rigx");
    QPointer<GUI_CameraFileDialog> dialog;
    /// Its parent, which may go while it stands.
    QPointer<QWidget> window;
};

TEST_F(CameraFileDialog, ListsTheDevicesThatAreConnected) {
    camera(1).change({{"name", "<b>Gate</b> with a name that is long"}, {"preset", 3}});
    camera(3).change({{"connected", false}});
    camera(8).change({{"locked", true}});
    host.faults().plant(6, "getCameraPresetInfo", {"no answer"});
    run([&](GUI_CameraFileDialog& shown) {
        QStringList expected{
            shown.fontMetrics().elidedText("<b>Gate</b> with a name that is long", Qt::ElideRight, 140) +
                "|192.168.0.11\tstandard|1|2|3*|4|None",
            "Ramp|192.168.0.12\tstandard|1|2|3|4|None",
            "Nozzle right|192.168.0.13\ttwo-head|1|2|3|4|5|6|7|None",
            "Roof|192.168.0.14\tcompact|None*",
            "Impact|192.168.0.16\tfast|1|2|3|4|None",
            "Stand-in|192.168.0.17\tdummy|None*-"};
        EXPECT_EQ(rows(shown), expected);
        const QSize size = shown.size();
        auto* check = shown.findChild<QCheckBox*>();
        for (const bool on : {true, false}) {
            check->setChecked(on);
            EXPECT_EQ(shown.findChild<QListWidget*>()->isVisible(), on);
            EXPECT_EQ(shown.findChild<QLineEdit*>("fileNameEdit")->isEnabled(), !on);
            EXPECT_EQ(shown.size(),
                      QSize(size.width(), on ? int(size.height() * 1.7) : int(int(size.height() * 1.7) / 1.7)));
        }
    });
    EXPECT_EQ(desk.beside, QStringList("Track: no answer")) << "it keeps no other from its row";

    for (Camera* each : host.cameras().all()) {
        each->change({{"connected", false}});
    }
    run([](GUI_CameraFileDialog& shown) { EXPECT_FALSE(shown.findChild<QCheckBox*>()->isEnabled()); });
}

TEST_F(CameraFileDialog, TakesTheNameThatIsTyped) {
    const QString bad = "Invalid filename.";
    struct Case {
        QString typed;
        QString told;
        bool loads = false;
    };
    QList<Case> cases{{"good.rigx", {}, true},
                      {"good", {}, true},
                      {file, {}, true},
                      {"none.rigx", folder.filePath("none.rigx") + " does not exist."},
                      {"a:b/none", folder.filePath("a:b/none.rigx") + " does not exist."},
                      {"c%d/good.rigx", bad},
                      {"\"good.rigx\" \"b.rigx\"", bad},
                      {"sub", {}},
                      {"", {}}};
    for (const QChar c : QString("\\*?|\":<>%")) {
        cases.append({QString("go%1od.rigx").arg(c), bad});
    }
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed.toStdString());
        fail("loadSettingsFile");
        const int result = run([&](GUI_CameraFileDialog& shown) {
            type(shown, c.typed);
            EXPECT_EQ(shown.isVisible(), !c.loads);
            if (c.typed == "sub") {
                type(shown, "../good.rigx");
            }
        });
        const bool loads = c.loads || c.typed == "sub";
        EXPECT_EQ(result, loads ? 1 : 0);
        EXPECT_EQ(calls("loadSettings"), loads ? QStringList("loadSettingsFile " + file + " 0 0") : QStringList());
        EXPECT_EQ(desk.take(),
                  c.told.isEmpty() ? loads ? QStringList("no answer") : QStringList() : QStringList(c.told));
        const QString inFolder = c.typed == "sub" ? folder.filePath("sub") : folder.path();
        EXPECT_EQ(host.prefs().value("rigx/path").toString(), loads ? inFolder : QString());
        host.prefs().setValue("rigx/path", QString());
    }
    run([&](GUI_CameraFileDialog& shown) {
        for (const char* pasted : {"a\tb", "a\nb"}) {
            auto* field = shown.findChild<QLineEdit*>("fileNameEdit");
            field->setText(pasted);
            QTest::keyClick(field, Qt::Key_Return);
            QCoreApplication::processEvents();
        }
    });
    EXPECT_EQ(desk.take(), QStringList({bad, bad}));
}

TEST_F(CameraFileDialog, LoadsPresetsInTheOrderOfTheKeys) {
    const QStringList begin{"beginDocEdit", "beginDocEditNotify", "restartLive 0 1 1"};
    const QStringList end{"resumeLive", "endDocEdit", "commitDocEdit"};
    const QStringList impact{"markRebooting 7 0 7", "loadCameraPreset 7 1", "refreshAfterPreset 7 0",
                             "disconnectDoc 7 0"};
    const QString question =
        "The following camera preset is loaded after rebooting. Please restart the camera.\n\n Impact";
    struct Case {
        const char* what;
        QMap<QString, QString> chosen;
        QStringList loads;
        std::function<void()> inQuestion = {};
        bool no = false;
        QStringList told = {};
    };
    for (const Case& c : {
             Case{"the present one once more", {}, {"loadCameraPreset 1 3", "refreshAfterPreset 1 0"}},
             {"none at all", {{"Gate", "None"}}, {}},
             {"all heads",
              {{"Gate", "None"}, {"Nozzle left", "7"}},
              {"loadCameraPreset 3 7", "refreshAfterPreset 3 0", "refreshAfterPreset 4 0"}},
             {"no", {{"Impact", "1"}}, {}, [] {}, true},
             {"locked meanwhile",
              {{"Impact", "1"}},
              impact,
              [&] {
                  camera(1).change({{"locked", true}});
              },
              false,
              {"Gate: the camera is locked"}},
             {"disconnected meanwhile",
              {{"Impact", "1"}},
              impact,
              [&] {
                  camera(1).change({{"connected", false}, {"locked", false}});
              },
              false,
              {"Gate: the camera is not connected"}},
             {"gone meanwhile",
              {{"Impact", "1"}},
              impact,
              [&] {
                  host.faults().plant(1, "*", {{}, 0, true});
              }},
             {"another mode",
              {{"Impact", "1"}},
              {},
              [&] { host.appStatus().enterMode(zeb::FileMode); },
              false,
              {"The mode has changed. No preset was loaded."}},
         }) {
        SCOPED_TRACE(c.what);
        connectAll();
        host.appStatus().enterMode(zeb::LiveMode);
        camera(1).change({{"preset", 3}, {"locked", false}});
        desk.whileStanding = c.inQuestion;
        desk.answers = c.no ? QList<Answer>{{false, false}} : QList<Answer>();
        presetCalls();
        EXPECT_EQ(run(load(c.chosen)), 1);
        EXPECT_EQ(presetCalls(), begin + c.loads + end);
        EXPECT_EQ(desk.take(), (c.inQuestion ? QStringList(question) : QStringList()) + c.told);
    }
}

TEST_F(CameraFileDialog, EndsAtTheFirstPresetThatFails) {
    const auto loaded = [&](int failing) {
        connectAll();
        const auto press = load({{"Gate", "1"}, {"Nozzle left", "2"}, {"Impact", "3"}});
        calls();
        EXPECT_EQ(run([&](GUI_CameraFileDialog& shown) {
                      host.faults().plantAt(failing, {"no answer"});
                      press(shown);
                  }),
                  1);
        EXPECT_FALSE(host.liveLoop().isLivePaused());
        EXPECT_TRUE(host.docManager().getDocMutex()->tryLock());
        host.docManager().getDocMutex()->unlock();
        return calls("markReb|CameraPreset|refreshAfter|disconnectDoc");
    };
    const QStringList all = loaded(INT_MAX);
    EXPECT_EQ(all.size(), 9);
    const auto whole = host.faults().calls();
    desk.take();
    const QList<int> failing = callsToFail(whole);
    for (const int number : failing) {
        const FaultPlan::Call& call = whole.at(number - 1);
        SCOPED_TRACE(QString("%1 of %2").arg(QString(call.operation)).arg(call.key).toStdString());
        const QStringList some = loaded(number);
        EXPECT_EQ(some, all.mid(0, some.size()));
        const bool isProgress = call.operation == "getCameraName" || call.operation == "getPrefString";
        const QStringList told = desk.take().filter("no answer");
        EXPECT_EQ(told.size(), isProgress || call.operation == "reboot" ? 0 : 1);
        EXPECT_TRUE(told.isEmpty() || call.key == FaultPlan::Host || told.first().contains(camera(call.key).name()));
        EXPECT_TRUE(!isProgress || some == all);
    }
    std::cout << failing.size() << " faults\n";
}

TEST_F(CameraFileDialog, NamesTheCameraThatIsAtWork) {
    host.setRig(connected(64));
    for (Camera* each : host.cameras().all()) {
        each->change({{"preset", 1}});
    }
    QStringList shown;
    QObject::connect(&host.journal(), &Journal::recorded, &host.journal(), [&](const QString& call) {
        if (call == "DOC_Control::loadCameraPreset") {
            auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(progress);
            shown += progress->labelText();
            progress->close();
            QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
            EXPECT_TRUE(dialog->isVisible());
        }
    });
    EXPECT_EQ(run(load({})), 1);
    ASSERT_EQ(shown.size(), 64);
    EXPECT_EQ(shown.first(), "Loading preset: Camera 1 (1 of 64)");
    EXPECT_EQ(shown.last(), "Loading preset: Camera 64 (64 of 64)");
}

TEST_F(CameraFileDialog, MayGoInEachOfItsWaits) {
    const auto typed = [&](const QString& name) { return [name](GUI_CameraFileDialog& shown) { type(shown, name); }; };
    struct Case {
        const char* what;
        Act act;
        /// It goes in this call; else in the first box.
        const char* in;
        bool fails = false;
    };
    for (const Case& c : {
             Case{"a box for a bad name", typed("%"), ""},
             Case{"the load of a file", typed("good.rigx"), "ZebDocManager::loadSettingsFile"},
             Case{"the box of its failure", typed("good.rigx"), "", true},
             Case{"the question", load({{"Impact", "1"}}), ""},
             Case{"the load of a preset", load({{"Gate", "1"}, {"Ramp", "1"}}), "DOC_Control::loadCameraPreset"},
             Case{"the box of its failure", load({{"Gate", "1"}}), "", true},
         }) {
        SCOPED_TRACE(c.what);
        connectAll();
        host.faults().plant(FaultPlan::Host, "loadSettingsFile", {c.fails ? "no answer" : ""});
        host.faults().plant(1, "loadCameraPreset", {c.fails ? "no answer" : ""});
        const auto go = [&] { delete window; };
        desk.whileStanding = *c.in != 0 ? std::function<void()>() : go;
        const auto hook = QObject::connect(&host.journal(), &Journal::recorded, [&](const QString& call) {
            if (call == c.in && window) {
                go();
            }
        });
        EXPECT_EQ(run(c.act), 0);
        EXPECT_FALSE(dialog);
        EXPECT_FALSE(host.liveLoop().isLivePaused());
        QObject::disconnect(hook);
        desk.whileStanding = nullptr;
        desk.take();
    }
}

TEST_F(CameraFileDialog, TellsTheLogWhatTheUserDoes) {
    Course course;
    const auto lines = [&course] {
        return course.take().filter("[USER]").replaceInStrings(QRegularExpression(".*\\[(ID|Class):|\\] \"$"), "");
    };
    run([](GUI_CameraFileDialog& shown) {
        QTest::keyClick(shown.findChild<QCheckBox*>(), Qt::Key_Space);
        QTest::keyClick(shown.findChild<QCheckBox*>(), Qt::Key_Space);
        QCloseEvent close;
        QSpontaneKeyEvent::setSpontaneous(&close);
        qApp->notify(&shown, &close);
    });
    EXPECT_EQ(lines(), (QStringList{"checkLoadCamera] [Control:Button] [Operation:toggled] [Value:ON",
                                    "checkLoadCamera] [Control:Button] [Operation:toggled] [Value:OFF",
                                    "GUI_CameraFileDialog] [Control:Button] [Operation:clicked] [Value:close"}));
    run([this](GUI_CameraFileDialog& shown) {
        load({})(shown);
        shown.close();
    });
    EXPECT_EQ(lines().mid(1), QStringList("okButton] [Control:Button] [Operation:clicked] [Value:"));
}

}  // namespace
