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
        host.prefs().setValue("rigx/path", folder.path());
        dialog = new GUI_CameraFileDialog(&host, window);
        host.prefs().setValue("rigx/path", QString());
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
    static QString text(const QWidget& row) {
        QStringList words;
        for (const QLabel* label : row.findChildren<QLabel*>()) {
            EXPECT_TRUE(label->textFormat() == Qt::PlainText || label->text().isEmpty());
            words += label->text();
        }
        for (const QRadioButton* button : row.findChildren<QRadioButton*>()) {
            words += button->text() + (button->isChecked() ? "*" : "") + (button->isEnabled() ? "" : "-");
        }
        return words.join('|');
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
        const QString cut = shown.fontMetrics().elidedText("<b>Gate</b> with a name that is long", Qt::ElideRight, 140);
        const QStringList expected{cut + "|192.168.0.11\tstandard||1|2|3*|4|None",
                                   "Ramp|192.168.0.12\tstandard||1|2|3|4|None",
                                   "Nozzle right|192.168.0.13\ttwo-head||1|2|3|4|5|6|7|None",
                                   "Roof|192.168.0.14\tcompact||None*",
                                   "Impact|192.168.0.16\tfast||1|2|3|4|None",
                                   "Stand-in|192.168.0.17\tdummy||None*-"};
        const auto* list = shown.findChild<QListWidget*>();
        ASSERT_EQ(list->count(), expected.size());
        for (int i = 0; i < expected.size(); ++i) {
            EXPECT_EQ(text(*list->itemWidget(list->item(i))), expected.at(i));
        }
        const QSize size = shown.size();
        auto* check = shown.findChild<QCheckBox*>();
        for (const bool on : {true, false}) {
            check->setChecked(on);
            EXPECT_EQ(shown.findChild<QListWidget*>()->isVisible(), on);
            EXPECT_EQ(shown.findChild<QLineEdit*>("fileNameEdit")->isEnabled(), !on);
            EXPECT_EQ(shown.width(), size.width());
            EXPECT_NEAR(shown.height(), size.height() * (on ? 1.7 : 1), 1);
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
    for (const char* pasted : {"a\tb", "a\nb"}) {
        run([pasted](GUI_CameraFileDialog& shown) {
            shown.findChild<QLineEdit*>("fileNameEdit")->setText(pasted);
            type(shown, {});
        });
        EXPECT_EQ(desk.take(), QStringList(bad));
    }
}

TEST_F(CameraFileDialog, LoadsPresetsInTheOrderOfTheKeys) {
    const QStringList begin{"beginDocEdit", "beginDocEditNotify", "restartLive 0 1 1"};
    const QStringList end{"resumeLive", "endDocEdit", "commitDocEdit"};
    const QStringList impact{"markRebooting 7 0 7", "loadCameraPreset 7 1", "refreshAfterPreset 7 0",
                             "disconnectDoc 7 0"};
    const QString question =
        "The following camera preset is loaded after rebooting. Please restart the camera.\n\n Impact";
    const QMap<QString, QString> first{{"Impact", "1"}};
    struct Case {
        QMap<QString, QString> chosen;
        QStringList loads;
        /// What the first camera, or the host, has become while the question stood.
        QVariantMap meanwhile;
        QStringList told;
    };
    for (const Case& c : {
             Case{{}, {"loadCameraPreset 1 3", "refreshAfterPreset 1 0"}, {}, {}},  // the present one once more
             Case{{{"Gate", "None"}}, {}, {}, {}},
             Case{{{"Gate", "None"}, {"Nozzle left", "7"}},
                  {"loadCameraPreset 3 7", "refreshAfterPreset 3 0", "refreshAfterPreset 4 0"},
                  {},
                  {}},
             Case{first, {}, {{"refused", true}}, {question}},
             Case{first, impact, {{"locked", true}}, {question, "Gate: the camera is locked"}},
             Case{first, impact, {{"connected", false}}, {question, "Gate: the camera is not connected"}},
             Case{first, impact, {{"gone", true}}, {question}},
             Case{first, {}, {{"mode", zeb::FileMode}}, {question, "The mode has changed. No preset was loaded."}},
         }) {
        SCOPED_TRACE((c.chosen.keys() + c.meanwhile.keys()).join(' ').toStdString());
        connectAll();
        host.appStatus().enterMode(zeb::LiveMode);
        camera(1).change({{"preset", 3}});
        desk.answers = c.meanwhile.contains("refused") ? QList<Answer>{{false, false}} : QList<Answer>();
        desk.whileStanding = [&] {
            QVariantMap state = c.meanwhile;
            state.remove("refused");
            host.appStatus().enterMode(state.take("mode").toInt());
            const bool gone = state.take("gone").toBool();
            camera(1).change(state);
            host.faults().plant(1, "*", {{}, 0, gone});
        };
        presetCalls();
        EXPECT_EQ(run(load(c.chosen)), 1);
        EXPECT_EQ(presetCalls(), begin + c.loads + end);
        EXPECT_EQ(desk.take(), c.told);
    }
    desk.whileStanding = nullptr;
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
        desk.whileStanding = [&] { delete window; };
        const auto hook = QObject::connect(&host.journal(), &Journal::recorded,
                                           [&](const QString& call) { delete (call == c.in ? window : nullptr); });
        EXPECT_EQ(run(c.act), 0);
        EXPECT_FALSE(dialog);
        EXPECT_FALSE(host.liveLoop().isLivePaused());
        QObject::disconnect(hook);
    }
}

TEST_F(CameraFileDialog, TellsTheLogWhatTheUserDoes) {
    Course course;
    run([](GUI_CameraFileDialog& shown) {
        QTest::keyClick(shown.findChild<QCheckBox*>(), Qt::Key_Space);
        QTest::keyClick(shown.findChild<QCheckBox*>(), Qt::Key_Space);
        shown.close();
        QCloseEvent close;
        QSpontaneKeyEvent::setSpontaneous(&close);
        qApp->notify(&shown, &close);
    });
    EXPECT_EQ(course.take().filter("[USER]").replaceInStrings(QRegularExpression("^.*Dialog\\] "), ""),
              (QStringList{"[ID:checkLoadCamera] [Control:Button] [Operation:toggled] [Value:ON] \"",
                           "[ID:checkLoadCamera] [Control:Button] [Operation:toggled] [Value:OFF] \"",
                           "[Control:Button] [Operation:clicked] [Value:close] \""}));
}

}  // namespace
