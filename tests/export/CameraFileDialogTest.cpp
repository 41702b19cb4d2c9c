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
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

using Act = std::function<void(GUI_CameraFileDialog&)>;

/// Eight cameras that are connected: 3 and 4 are heads of one device, 5 and 8 have no presets, 7 starts anew for one.
class CameraFileDialog : public testing::Test, protected TestHost {
protected:
    CameraFileDialog() {
        begin();
        QDir(folder.path()).mkpath("sub");
        write(file, "{}");
    }

    void begin() {
        host.faults().clear();
        host.appStatus().enterMode(zeb::LiveMode);
        host.setRig(readRig("eight-mixed"));
        for (Camera* each : host.cameras().all()) {
            each->change({{"connected", true}});
        }
        calls();
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
    static Act type(const QString& text) {
        return [text](GUI_CameraFileDialog& shown) {
            auto* field = shown.findChild<QLineEdit*>("fileNameEdit");
            // Without the focus Qt completes what is typed.
            EXPECT_TRUE(until([field] { return field->hasFocus(); }));
            QTest::keyClicks(field, text);
            QTest::keyClick(field, Qt::Key_Return);
            QCoreApplication::processEvents();
        };
    }
    /// Presses a button of the row that is that of the camera's name, and OK.
    static Act load(const QMap<QString, QString>& chosen) {
        return [chosen](GUI_CameraFileDialog& shown) {
            QTest::keyClick(shown.findChild<QCheckBox*>(), Qt::Key_Space);
            auto* list = shown.findChild<QListWidget*>();
            for (QRadioButton* button : list->findChildren<QRadioButton*>()) {
                const QString name = button->parent()->findChild<QLabel*>()->text();
                if (chosen.value(name) == button->text()) {
                    QTest::keyClick(button, Qt::Key_Space);
                }
            }
            QTest::keyClick(list, Qt::Key_Return);
        };
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

    const QString file = folder.filePath("good.rigx");
    QPointer<GUI_CameraFileDialog> dialog;
    /// Its parent, which may go while it stands.
    QPointer<QWidget> window;
};

TEST_F(CameraFileDialog, ListsTheDevicesThatAreConnected) {
    const QString longName = "<b>Gate</b> with a name that is long";
    camera(1).change({{"name", longName}, {"preset", 3}});
    camera(3).change({{"connected", false}});
    camera(8).change({{"locked", true}});
    host.faults().plant(6, "getCameraPresetInfo", {"no answer"});
    run([&](GUI_CameraFileDialog& shown) {
        const auto* list = shown.findChild<QListWidget*>();
        QStringList rows;
        for (int i = 0; i < list->count(); ++i) {
            rows += text(*list->itemWidget(list->item(i)));
        }
        const QString cut = shown.fontMetrics().elidedText(longName, Qt::ElideRight, 140);
        EXPECT_EQ(
            rows,
            QStringList({cut + "|192.168.0.11\tstandard||1|2|3*|4|None", "Ramp|192.168.0.12\tstandard||1|2|3|4|None",
                         "Nozzle right|192.168.0.13\ttwo-head||1|2|3|4|5|6|7|None", "Roof|192.168.0.14\tcompact||None*",
                         "Impact|192.168.0.16\tfast||1|2|3|4|None", "Stand-in|192.168.0.17\tdummy||None*-"}));
        const QSize size = shown.size();
        for (const bool on : {true, false}) {
            shown.findChild<QCheckBox*>()->setChecked(on);
            EXPECT_EQ(list->isVisible(), on);
            EXPECT_EQ(shown.findChild<QLineEdit*>("fileNameEdit")->isEnabled(), !on);
            EXPECT_EQ(shown.width(), size.width());
            EXPECT_NEAR(shown.height(), size.height() * (on ? 1.7 : 1), 1);
        }
    });
    EXPECT_EQ(desk.beside, QStringList("Track: no answer")) << "it keeps no other from its row";
    host.setRig(readRig("eight-mixed"));
    run([](GUI_CameraFileDialog& shown) { EXPECT_FALSE(shown.findChild<QCheckBox*>()->isEnabled()); });
}

TEST_F(CameraFileDialog, TakesTheNameThatIsTyped) {
    const QString here = folder.path();
    const QString bad = "Invalid filename.";
    const struct {
        QStringList typed;
        QString told;
        /// The folder that is remembered; of no file that is loaded none.
        QString from;
    } cases[] = {
        {{"good.rigx"}, "no answer", here},
        {{"good"}, "no answer", here},
        {{file}, "no answer", here},
        {{"sub", "../good.rigx"}, "no answer", here + "/sub"},
        {{"none.rigx"}, here + "/none.rigx does not exist.", {}},
        {{"a:b/none"}, here + "/a:b/none.rigx does not exist.", {}},
        {{"a:b"}, bad, {}},
        {{"c%d/good.rigx"}, bad, {}},
        {{"\"good.rigx\" \"b.rigx\""}, bad, {}},
        {{""}, {}, {}},
    };
    fail("loadSettingsFile");
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed.join(' ').toStdString());
        const bool loads = !c.from.isEmpty();
        const int result = run([&](GUI_CameraFileDialog& shown) {
            for (const QString& name : c.typed) {
                EXPECT_TRUE(shown.isVisible());
                type(name)(shown);
            }
            EXPECT_EQ(shown.isVisible(), !loads);
        });
        EXPECT_EQ(result, loads ? 1 : 0);
        EXPECT_EQ(calls("loadSettings"), loads ? QStringList("loadSettingsFile " + file + " 0 0") : QStringList());
        EXPECT_EQ(desk.take().join('|'), c.told);
        EXPECT_EQ(host.prefs().value("rigx/path").toString(), c.from);
    }
}

TEST_F(CameraFileDialog, LoadsPresetsInTheOrderOfTheKeys) {
    const QStringList impact{"markRebooting 7 0 7", "loadCameraPreset 7 1", "refreshAfterPreset 7 0",
                             "disconnectDoc 7 0"};
    const QString asked =
        "The following camera preset is loaded after rebooting. Please restart the camera.\n\n Impact";
    const QStringList nozzle{"loadCameraPreset 3 7", "refreshAfterPreset 3 0", "refreshAfterPreset 4 0"};
    const QMap<QString, QString> first{{"Impact", "1"}};
    const auto refuse = [this] { desk.answers = {{false}}; };
    const auto leave = [this] { host.appStatus().enterMode(zeb::FileMode); };
    const auto vanish = [this] { host.faults().plant(1, "*", {{}, 0, true}); };
    const auto gate = [this](const QVariantMap& state) { return [=] { camera(1).change(state); }; };
    const struct {
        QMap<QString, QString> chosen;
        QStringList loads;
        QStringList told;
        std::function<void()> whileAsked;
    } cases[] = {
        {{}, {"loadCameraPreset 1 3", "refreshAfterPreset 1 0"}, {}, {}},  // the present one once more
        {{{"Gate", "None"}, {"Nozzle left", "7"}}, nozzle, {}, {}},
        {first, {}, {asked}, refuse},
        {first, impact, {asked, "Gate: the camera is locked"}, gate({{"locked", true}})},
        {first, impact, {asked, "Gate: the camera is not connected"}, gate({{"connected", false}})},
        {first, impact, {asked}, vanish},
        {first, {}, {asked, "The mode has changed. No preset was loaded."}, leave},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.told.join('|').toStdString());
        begin();
        camera(1).change({{"preset", 3}});
        desk.whileStanding = c.whileAsked;
        EXPECT_EQ(run(load(c.chosen)), 1);
        EXPECT_EQ(calls("markReb|CameraPreset|refreshAfter|disconnectDoc|DocEdit|restartLive|::pause|::resume"),
                  QStringList({"beginDocEdit", "beginDocEditNotify", "restartLive 0 1 1"}) + c.loads +
                      QStringList({"resumeLive", "endDocEdit", "commitDocEdit"}));
        EXPECT_EQ(desk.take(), c.told);
    }
}

TEST_F(CameraFileDialog, EndsAtTheFirstPresetThatFails) {
    const auto loaded = [&](int failing) {
        begin();
        EXPECT_EQ(run([&](GUI_CameraFileDialog& shown) {
                      host.faults().plantAt(failing, {"no answer"});
                      load({{"Gate", "1"}, {"Nozzle left", "2"}, {"Impact", "3"}})(shown);
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
    const QList<int> failing = callsToFail(whole);
    EXPECT_GE(failing.size(), 40);
    desk.take();
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
}

TEST_F(CameraFileDialog, NamesTheCameraThatIsAtWork) {
    QStringList named;
    QObject::connect(&host.journal(), &Journal::recorded, &host.journal(), [&](const QString& call) {
        if (call == "DOC_Control::loadCameraPreset") {
            auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(progress);
            named += progress->labelText();
            progress->close();
            QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
            EXPECT_TRUE(dialog->isVisible());
        }
    });
    EXPECT_EQ(run(load({{"Gate", "1"}, {"Ramp", "1"}})), 1);
    EXPECT_EQ(named, QStringList({"Loading preset: Gate (1 of 2)", "Loading preset: Ramp (2 of 2)"}));
}

TEST_F(CameraFileDialog, MayGoInEachOfItsWaits) {
    const struct {
        const char* what;
        Act act;
        /// It goes in this call; else in the first box.
        const char* in;
        bool fails = false;
    } cases[] = {
        {"a box for a bad name", type("%"), ""},
        {"the load of a file", type("good.rigx"), "ZebDocManager::loadSettingsFile"},
        {"the box of its failure", type("good.rigx"), "", true},
        {"the question", load({{"Impact", "1"}}), ""},
        {"the load of a preset", load({{"Gate", "1"}, {"Ramp", "1"}}), "DOC_Control::loadCameraPreset"},
        {"the box of its failure", load({{"Gate", "1"}}), "", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        begin();
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
        shown.close();
        QCloseEvent close;
        QSpontaneKeyEvent::setSpontaneous(&close);
        qApp->notify(&shown, &close);
    });
    EXPECT_EQ(course.take().filter("[USER]").replaceInStrings(QRegularExpression("^.*Dialog\\] "), ""),
              QStringList({"[ID:checkLoadCamera] [Control:Button] [Operation:toggled] [Value:ON] \"",
                           "[Control:Button] [Operation:clicked] [Value:close] \""}));
}

}  // namespace
