#include "PLG_wren.h"

#include "APP_Exception.h"
#include "GUI_WrenTableDialog.h"
#include "JS_Mediator_WrenTableDialog.h"
#include "TestPlugin.h"
#include "Until.h"

#include <QApplication>
#include <QImage>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QThread>

using testing::Contains;
using testing::IsEmpty;

namespace {

constexpr auto EraseQuestion =
    "confirm <There are cameras that need to erase the image data recorded to continue the operation. Would you "
    "like to erase the data and continue the operation?>";

class PLG_wrenTest : public PluginHost {
protected:
    PLG_wrenTest() : PluginHost(3) {
        plugin->setHost(&host);
        host.appStatus().registerPlugin(plugin.get());
        taken();
    }

    JS_Mediator_WrenTableDialog* openTable() {
        auto* dialog = static_cast<GUI_WrenTableDialog*>(plugin->getDialog(true));
        plugin->showDialog();
        return static_cast<JS_Mediator_WrenTableDialog*>(dialog->getBridge());
    }

    /// As a host raises a signal: by its name.
    bool raise(const char* signal) { return QMetaObject::invokeMethod(plugin.get(), signal); }

    std::unique_ptr<PLG_wren> plugin = std::make_unique<PLG_wren>();
};

}  // namespace

TEST_F(PLG_wrenTest, AsksBeforeItErases) {
    const auto record = [this] {
        for (const DOCKEY key : {1, 3}) {
            camera(key).set(&CameraState::recorded, true);
        }
    };
    const auto recordAndMeanwhile = [&](const std::function<void()>& work) {
        return [&, work] { record(), desk.whileStanding = work; };
    };
    const Fault gone{{}, 0, true};
    const struct {
        const char* sentence;
        std::function<void()> arrange;
        std::vector<std::string> calls;
    } rows[] = {
        {"without recorded data it asks nothing", [] {}, {}},
        {"with some it erases those cameras",
         record,
         {EraseQuestion, "eraseRecordedData 1 0", "eraseRecordedData 3 0"}},
        {"a camera that goes while the question stands is passed over",
         recordAndMeanwhile([&] { host.faults().plant(1, "*", gone); }),
         {EraseQuestion, "eraseRecordedData 3 0"}},
        {"so is one that loses its connection",
         recordAndMeanwhile([this] { camera(3).set(&CameraState::connected, false); }),
         {EraseQuestion, "eraseRecordedData 1 0"}},
        {"one that does not answer is named and keeps nobody from it",
         [&] {
             camera(3).set(&CameraState::connected, true);
             record();
             host.faults().plant(2, "isConnected", {"no answer"});
             desk.whileStanding = [this] { host.faults().plant(1, "isConnected", {"no answer"}); };
         },
         {R"(critical: "Camera 2: no answer")", EraseQuestion, "eraseRecordedData 3 0",
          R"(critical: "Camera 1: no answer")", "alert <Camera 1: no answer>"}},
        {"while the table runs it asks nothing",
         [&] {
             record();
             host.appStatus().setWrenRunning(true);
         },
         {}},
        {"nor out of live mode",
         [&] {
             host.appStatus().setWrenRunning(false);
             host.appStatus().enterMode(zeb::MemoryMode);
         },
         {}},
    };
    for (const auto& row : rows) {
        host.faults().clear();
        row.arrange();
        taken();
        plugin->prepareOpen();
        EXPECT_EQ(taken(), row.calls) << row.sentence;
    }
}

TEST_F(PLG_wrenTest, EndsTheOpeningWithoutATextWhenTheUserRefuses) {
    camera(2).set(&CameraState::recorded, true);
    desk.answers = {{false, false}};
    try {
        plugin->prepareOpen();
        FAIL() << "the opening goes on";
    } catch (const APP_Exception& e) {
        EXPECT_STREQ(e.what(), "");
        EXPECT_EQ(e.errorCode(), 0);
    }
    EXPECT_THAT(taken(), testing::Not(Contains("eraseRecordedData 2 0")));
}

TEST_F(PLG_wrenTest, BearsEverySignalWithoutATable) {
    int raised = 0;
    for (const char* signal : {"signalRecord", "signalSaveFile", "signalSaveLayout", "signalEndRecording",
                               "signalDisconnect", "signalStartAutoUpdate", "signalStopAutoUpdate"}) {
        raised += raise(signal);
    }
    plugin->slotScreenShot(QStringLiteral("/nowhere/a.png"));
    EXPECT_EQ(raised, 7);
    EXPECT_THAT(taken(), IsEmpty());
}

TEST_F(PLG_wrenTest, ServesTheSignalsOfTheHost) {
    auto* bridge = openTable();
    EXPECT_FALSE(bridge->isTicking());
    ASSERT_TRUE(raise("signalStartAutoUpdate"));
    EXPECT_TRUE(bridge->isTicking());
    ASSERT_TRUE(raise("signalStopAutoUpdate"));
    EXPECT_FALSE(bridge->isTicking());
    bridge->setRecordRunning();
    ASSERT_TRUE(raise("signalEndRecording"));
    EXPECT_FALSE(bridge->state().recordRunning);
    camera(2).set(&CameraState::locked, true);
    ASSERT_TRUE(raise("signalDisconnect"));
    EXPECT_THAT(taken(), Contains("disconnectDocs 1,2,3")) << "though one is locked";
}

TEST_F(PLG_wrenTest, TakesTheHostsKeysWhileItsTableIsInFront) {
    const QStringList ofTheKeys{"startRecReady", "saveFiles", "saveLayoutFiles"};
    openTable();
    host.prefs().setValue("wren/display/lock", false);
    QWidget other;
    other.show();
    for (QWidget* front : {static_cast<QWidget*>(plugin->getDialog(false)), &other}) {
        QApplication::setActiveWindow(front);
        host.appStatus().enterMode(zeb::LiveMode);
        ASSERT_TRUE(raise("signalRecord"));
        host.recorder().cancelRecording(false);
        host.appStatus().enterMode(zeb::MemoryMode);
        ASSERT_TRUE(raise("signalSaveFile") && raise("signalSaveLayout"));
        EXPECT_EQ(course.take().filter(QRegularExpression("^(startRecReady|save)")),
                  front == &other ? QStringList() : ofTheKeys);
    }
}

TEST_F(PLG_wrenTest, KeepsWhoAsksForAPictureWaitingUntilItIsWritten) {
    openTable();
    const QString path = folder.filePath(QStringLiteral("table.png"));
    bool written = false;
    QScopedPointer<QThread> asking(QThread::create([&] {
        QMetaObject::invokeMethod(plugin.get(), "signalScreenShot", Qt::DirectConnection, Q_ARG(QString, path));
        written = !QImage(path).isNull();
    }));
    asking->start();
    EXPECT_TRUE(until([&] { return asking->isFinished(); }));
    asking->wait();
    EXPECT_TRUE(written);
    EXPECT_EQ(QImage(path).size(), plugin->getDialog(false)->size());
    taken();
    plugin->slotScreenShot(QStringLiteral("/nowhere/a.png"));
    EXPECT_THAT(taken(), Contains(testing::HasSubstr("/nowhere/a.png"))) << "it warns of one that cannot be written";
}

TEST_F(PLG_wrenTest, KeepsTheTableOpenInFileMode) {
    openTable();
    EXPECT_TRUE(plugin->isChecked(doc(1), 0) && plugin->isButtonEnabled());
    host.appStatus().enterMode(zeb::FileMode);
    plugin->updateDialog(zeb::FileMode);
    EXPECT_TRUE(plugin->isDialogVisible());
    EXPECT_FALSE(plugin->isChecked(doc(1), 0) || plugin->isButtonEnabled());
}

TEST_F(PLG_wrenTest, MakesOneTableThoughItsBridgeAsksFirst) {
    fail("setPrefBool");
    QDialog* second = nullptr;
    desk.whileStanding = [&] { second = plugin->getDialog(true); };
    QDialog* first = plugin->getDialog(true);
    EXPECT_THAT(taken(), Contains("error <no answer>")) << "a box stood while the bridge was made";
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(second, nullptr);
}
