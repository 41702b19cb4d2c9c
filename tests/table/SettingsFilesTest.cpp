#include "GUI_CameraFileDialog.h"
#include "GUI_CameraSettingsDialog.h"
#include "TableFixture.h"
#include "Until.h"
#include "VisibleWindows.h"

#include <QApplication>
#include <QMenu>
#include <QTimer>

namespace {

/// The dialogs and menus of the table that stand for themselves. Camera 8 is not connected.
class SettingsFilesTest : public BridgeFixture {
protected:
    SettingsFilesTest() {
        qputenv("HOME", folder.path().toLocal8Bit());
        host.setMainWindow(window);
        host.appStatus().setWrenRunning(true);
        connectAll();
        change(8, {{"connected", false}});
        makeBridge();
        calls();
    }
    ~SettingsFilesTest() override { delete window; }

    /// Does `act` as soon as a dialog or a menu stands, and closes it.
    template <typename Act>
    void whenItStands(Act act) {
        stood.clear();
        QTimer::singleShot(0, bridge.get(), [this, act] {
            QWidget* widget = QApplication::activePopupWidget();
            const QPointer<QWidget> it = widget ? widget : QApplication::activeModalWidget();
            if (it) {
                stood = it->metaObject()->className();
                EXPECT_EQ(bridge->state().loadingRigx, stood == "GUI_CameraFileDialog");
                act(*it);
            }
            if (it) {
                it->close();
            }
        });
    }
    static int bars() { return visibleWindows().count("GUI_ProgressDialog"); }

    QPointer<QWidget> window = new QWidget;
    QString stood;
};

TEST_F(SettingsFilesTest, StandInLiveModeWithoutLowLight) {
    const struct {
        void (JS_Mediator_WrenTableDialog::*slot)();
        const char* dialog;
        const char* refusal;
    } cases[] = {
        {&JS_Mediator_WrenTableDialog::loadRigx, "GUI_CameraFileDialog",
         "The settings cannot be loaded because a camera with low light ON is included."},
        {&JS_Mediator_WrenTableDialog::saveRigx, "GUI_CameraSettingsDialog",
         "The setting can not be saved because low light ON camera is included."},
    };
    for (const int mode : {zeb::LiveMode, zeb::MemoryMode, zeb::FileMode}) {
        for (const bool lowLight : {false, true}) {
            for (const auto& c : cases) {
                host.appStatus().enterMode(mode);
                change(2, {{"lowLight", lowLight}});
                whenItStands([&](QWidget& it) { EXPECT_EQ(it.parentWidget(), window); });
                (bridge.get()->*c.slot)();
                const bool live = mode == zeb::LiveMode;
                EXPECT_EQ(stood, live && !lowLight ? c.dialog : "");
                EXPECT_EQ(desk.take(), live && lowLight ? QStringList(c.refusal) : QStringList());
                EXPECT_FALSE(bridge->state().loadingRigx);
            }
        }
    }
}

TEST_F(SettingsFilesTest, BeginInTheFolderOfTheLastFile) {
    const QString usual = folder.filePath("Documents/Kestrel/ZEB4");
    for (const auto& [stored, begins] : {qMakePair(QString(), usual), qMakePair(folder.path(), folder.path()),
                                         qMakePair(folder.filePath("gone"), usual)}) {
        host.setPref("rigx/path", stored);
        whenItStands(
            [begins = begins](QWidget& it) { EXPECT_EQ(static_cast<QFileDialog&>(it).directory().path(), begins); });
        bridge->loadRigx();
    }
}

TEST_F(SettingsFilesTest, PrepareWhatALoadHasConnected) {
    for (const bool accepted : {true, false}) {
        for (const bool ready : {false, true}) {
            SCOPED_TRACE(QString("%1 %2").arg(accepted).arg(ready).toStdString());
            host.flags().set("IsReady", false);
            change(8, {{"connected", false}, {"resolutionLock", false}});
            host.setPref("wren/settings/resolutionLock", true);
            whenItStands([&](QWidget& it) {
                change(8, {{"connected", true}});
                host.flags().set("IsReady", ready);
                bridge->showReadyProgress();
                EXPECT_EQ(bars(), 0);
                static_cast<QDialog&>(it).done(accepted);
            });
            bridge->loadRigx();
            EXPECT_EQ(stateOf(8, "resolutionLock").toBool(), accepted || !ready);
            EXPECT_EQ(bars(), ready ? 1 : 0);
            EXPECT_FALSE(bridge->state().loadingRigx);
            bridge->deleteReadyProgress();
            desk.take();
        }
    }
}

TEST_F(SettingsFilesTest, AreCrossedByWhatHappensMeanwhile) {
    const auto menu = [this] { bridge->effectContextMenu("1", "lut", 10, 10); };
    const std::function<void()> waits[] = {[this] { bridge->loadRigx(); }, [this] { bridge->saveRigx(); }, menu};
    const std::function<void()> happens[] = {
        [this] { bridge->connect({1}, false, true); },          [this] { host.appStatus().enterMode(zeb::FileMode); },
        [this] { host.faults().plant(1, "*", {{}, 0, true}); }, [this] { delete window; },
        [this] { bridge->togglePlugin({1}, "lut", true); },     [this] { bridge->loadRigx(); },
    };
    for (const auto& wait : waits) {
        for (const auto& happen : happens) {
            host.setRig(readRig("eight-mixed"));
            host.appStatus().enterMode(zeb::LiveMode);
            connectAll();
            window = window ? window.data() : new QWidget;
            host.setMainWindow(window);
            calls();
            whenItStands([&](QWidget&) { happen(); });
            wait();
            EXPECT_NE(stood, "");
            EXPECT_FALSE(bridge->isInCall());
            EXPECT_FALSE(bridge->state().loadingRigx);
            EXPECT_EQ(calls("setPluginEffective|disconnectDocs"), QStringList()) << "refused, or put off";
            QCoreApplication::processEvents();
            EXPECT_EQ(calls("disconnectDocs").size(), &happen == &happens[0] ? 1 : 0);
            host.faults().clear();
        }
    }
}

TEST_F(SettingsFilesTest, AMenuStandsWhereItIsAskedFor) {
    // A lock keeps nobody from what works on recorded images alone.
    change(1, {{"locked", true}});
    whenItStands([](QWidget& it) {
        EXPECT_EQ(it.pos(), QPoint(30, 40));
        static_cast<QMenu&>(it).actions().first()->trigger();
    });
    bridge->effectContextMenu("1", "mosaic", 30, 40);
    EXPECT_EQ(stood, "QMenu");
    QCoreApplication::processEvents();
    EXPECT_EQ(calls("setPluginEffective"), QStringList("setPluginEffective 1 mosaic false 0"));
}

}  // namespace
