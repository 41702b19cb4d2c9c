#include "Course.h"
#include "LiveObjects.h"
#include "OtherHost.h"
#include "Until.h"
#include "VisibleWindows.h"

#include <QApplication>
#include <QDialog>
#include <QMetaMethod>
#include <QRegularExpression>
#include <QSemaphore>
#include <QSet>
#include <QSignalSpy>
#include <QTimer>

#include <gmock/gmock.h>

#include <atomic>
#include <mutex>
#include <optional>

namespace {

const QString RecAll = "recording/RecAllConnectedCamera";

using Operations = QSet<QByteArray>;

/// What is done with a table, and where it starts from.
struct Act {
    std::string name;
    std::function<void(OtherHost&)> prepare;
    std::function<void(OtherHost&)> act;
};

const Act Loading{"loading", [](OtherHost& host) { host.open(); },
                  [](OtherHost& host) { EXPECT_TRUE(until([&host] { return !host.view || host.hasPage(); })); }};
const Act Opened{"opened", [](OtherHost&) {},
                 [](OtherHost& host) {
                     host.open();
                     Loading.act(host);
                 }};
const Act OpenedAgain{"opened again",
                      [](OtherHost& host) {
                          host.openWhole();
                          host.close();
                      },
                      [](OtherHost& host) { host.open(); }};
const Act Activated{"activated",
                    [](OtherHost& host) {
                        host.openWhole();
                        QApplication::setActiveWindow(nullptr);
                    },
                    [](OtherHost& host) { QApplication::setActiveWindow(host.plugin->getDialog(false)); }};
const Act Closed{"closed", [](OtherHost& host) { host.openWhole(); }, [](OtherHost& host) { host.close(); }};

/// A tab comes to the front and stays for a cycle more.
Act lookedAt(int tab) {
    return {"tab " + std::to_string(tab),
            [tab](OtherHost& host) {
                if (!host.view) {
                    host.openWhole();
                }
                host.show(tab == 0 ? 1 : 0);
            },
            [tab](OtherHost& host) {
                host.show(tab);
                host.errors.clear();
                host.update();
                EXPECT_EQ(host.errors, QStringList()) << "a failure that stays has been told";
            }};
}

/// A call of each slot of the table's bridge, as its page makes it, and what needs more than one.
std::vector<Act> pageActs() {
    OtherHost host;
    host.open();
    const QMap<QByteArray, QString> values{{"QVariantList", "[1, 2, 3]"},
                                           {"QStringList", "['a']"},
                                           {"bool", "true"},
                                           {"QString", "'2'"},
                                           {"DOC_Interface*", "null"}};
    QStringList calls{"setParamLock([1, 2, 3], true); wrentabledialog.record()",
                      "connect([1, 2, 3], false); wrentabledialog.connect([1, 2, 3], true)",
                      "setTriggerMode([1, 2, 3], '5')", "enterMemoryMode(); wrentabledialog.save()",
                      "enterMemoryMode(); wrentabledialog.saveLayout()"};
    const QMetaObject& type = *host.bridge->metaObject();
    for (int i = QObject::staticMetaObject.methodCount(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        if (method.methodType() != QMetaMethod::Slot || method.name() == "deterUpdateUI") {
            continue;
        }
        QStringList arguments;
        for (const QByteArray& argument : method.parameterTypes()) {
            arguments << values.value(argument, "1");
        }
        calls << QString("%1(%2)").arg(method.name(), arguments.join(", "));
    }
    std::vector<Act> acts;
    for (const QString& call : calls) {
        acts.push_back(
            {call.toStdString(), Closed.prepare, [call](OtherHost& one) { one.run("void wrentabledialog." % call); }});
    }
    return acts;
}

/// The operations that an act calls and that may throw.
Operations operationsOf(const Act& act) {
    Operations operations;
    OtherHost host;
    act.prepare(host);
    host.onCall = [&operations](const QByteArray& operation, bool mayThrow) {
        if (mayThrow) {
            operations << operation;
        }
    };
    act.act(host);
    return operations;
}

/// Does the act while the operation fails, at its first call or at each.
void fail(OtherHost& host, const Act& act, const QByteArray& operation, bool always) {
    act.prepare(host);
    bool over = false;
    host.onCall = [&](const QByteArray& name, bool) {
        if (name == operation && (always || !std::exchange(over, true))) {
            throw std::runtime_error("no answer");
        }
    };
    act.act(host);
    host.onCall = nullptr;
}

/// What runs an event loop, changes what is stored, or tells of the plug-in: a host may destroy it there. The last ones
/// are windows of the plug-in.
const QByteArrayList Moments =
    QByteArray(
        "ZebHost::info ZebHost::warn ZebHost::warnList ZebHost::alert ZebHost::alertList "
        "ZebHost::alertWithDontShowAgain ZebHost::confirm ZebHost::confirmModal ZebHost::errorHandler "
        "ZebHost::confirmWithDontShowAgain ZebHost::execProgress ZebHost::openAboutDialog "
        "ZebHost::openPrefsEthernetSettings ZebPrefsDialog::exec ZebHost::saveFiles ZebHost::saveLayoutFiles "
        "ZebHost::setPref ZebHost::setPrefInt ZebHost::setPrefBool ZebHost::setPrefFloat "
        "ZebHost::setPrefString ZebDocManager::connectDocs ZebDocManager::disconnectDocs "
        "ZebDocManager::deleteAllDocs ZebDocManager::editDoc ZebCameraOps::searchCamera "
        "ZebCameraOps::discoverCameras ZebCameraOps::updateCameras ZebCameraOps::setRecordRate "
        "ZebCameraOps::setShutterSpeed ZebCameraOps::setResolution ZebCameraOps::setTriggerMode "
        "ZebCameraOps::setRandomTriggerPhase ZebCameraOps::setReduceMode ZebCameraOps::setLowLight "
        "ZebCameraOps::setLowLightType ZebCameraOps::stopForPrefs "
        "ZebRecorder::startRecReady ZebRecorder::cancelRecording ZebAppStatus::openPlugin "
        "ZebAppStatus::closePlugin ZebAppStatus::enterLiveMode ZebAppStatus::enterMemoryMode "
        "ZebAppStatus::setWrenRunning ZebAppStatus::notifyPluginShown ZebAppStatus::notifyPluginClosed "
        "QFileDialog QMessageBox GUI_SyncProgress GUI_WrenDefaultSettingsDialog")
        .split(' ');

class OtherHostTest : public testing::Test {
protected:
    /// The rows of a table that nothing has happened to; the first loading starts what lasts.
    OtherHostTest() {
        static const QList<QStringList> rows = [] {
            OtherHost host;
            host.openWhole();
            QList<QStringList> tabs;
            for (int tab = 0; tab < OtherHost::Tabs; ++tab) {
                host.show(tab);
                tabs << host.rows();
                EXPECT_EQ(host.rows().filter(QRegularExpression(">Camera [123]<")).size(), 3) << tab;
            }
            return tabs;
        }();
        m_rows = rows;
        m_before = Leftovers::now();
    }

    /// At the next cycle the tab in front is whole, and then each of the others.
    void expectWhole(OtherHost& host, const QList<int>& tabs = {0, 1, 2, 3, 4, 5, 6}) {
        host.update();
        for (const int tab : tabs) {
            host.show(tab);
            EXPECT_EQ(host.rows(), m_rows[tab]) << tab;
        }
        EXPECT_EQ(visibleWindows(), QStringList("GUI_WrenTableDialog"));
        EXPECT_TRUE(QSignalSpy(host.bridge, SIGNAL(autoUpdate())).wait());
    }

    /// The table is away and has taken back what it set.
    void expectOver(OtherHost& host) {
        EXPECT_EQ(visibleWindows(), QStringList());
        EXPECT_FALSE(host.running);
        EXPECT_FALSE(host.textBoxFocused);
        EXPECT_FALSE(host.prefs[RecAll].toBool());
    }

    /// `count` plug-ins have been loaded and are gone. The web engine keeps a little of its own.
    void expectNothingLeft(int count) {
        const Leftovers now = Leftovers::now();
        EXPECT_LT(now.objects, m_before.objects + count) << "after " << count;
        EXPECT_LT(now.timers, m_before.timers + count) << "after " << count;
        EXPECT_LT(now.threads, m_before.threads + count) << "after " << count;
    }

    Course quiet;

private:
    QList<QStringList> m_rows;
    Leftovers m_before;
};

}  // namespace

TEST_F(OtherHostTest, IsWholeAgainAfterAFaultAtItsOpening) {
    const auto expectWholeAfter = [this](const Act& act, const QByteArray& operation, bool always) {
        SCOPED_TRACE(act.name + ", " + operation.toStdString() + (always ? ", always" : ", at first"));
        OtherHost host;
        fail(host, act, operation, always);
        if (!host.plugin->isDialogVisible()) {
            host.openWhole();
        }
        expectWhole(host);
    };
    for (const QByteArray& operation : operationsOf(Opened)) {
        expectWholeAfter(Opened, operation, false);
        expectWholeAfter(Opened, operation, true);
    }
    for (const QByteArray& operation : operationsOf(Loading)) {
        expectWholeAfter(Loading, operation, true);
    }
}

TEST_F(OtherHostTest, IsWholeAgainAfterAFaultOnATab) {
    for (int tab = 0; tab < OtherHost::Tabs; ++tab) {
        const Operations operations = operationsOf(lookedAt(tab));
        OtherHost host;
        for (const QByteArray& operation : operations) {
            SCOPED_TRACE(std::to_string(tab) + ", " + operation.toStdString());
            fail(host, lookedAt(tab), operation, true);
            expectWhole(host, {tab});
        }
    }
}

TEST_F(OtherHostTest, MakesUpForAFaultAtItsCloseAtTheNext) {
    const Operations operations = operationsOf(Closed);
    OtherHost host;
    for (const QByteArray& operation : operations) {
        for (const bool always : {false, true}) {
            SCOPED_TRACE(operation.toStdString() + (always ? ", always" : ", at first"));
            fail(host, Closed, operation, always);
            host.openWhole();
            expectWhole(host);
            host.close();
            expectOver(host);
        }
    }
}

TEST_F(OtherHostTest, LetsNoFailureOutOfACallOfItsPage) {
    const std::vector<Act> acts = pageActs();
    OtherHost host;
    host.openWhole();
    for (const char* failing : {"DOC_", ""}) {
        for (const Act& act : acts) {
            host.onCall = [failing](const QByteArray& operation, bool mayThrow) {
                if (mayThrow && operation.startsWith(failing)) {
                    throw std::runtime_error("no answer");
                }
            };
            EXPECT_NO_THROW(act.act(host)) << act.name << ", " << failing;
        }
    }
    host.onCall = nullptr;
    host.rest();
    host.update();  // a close that one of the calls asked for comes afterwards
    host.openWhole();
    expectWhole(host);
}

TEST_F(OtherHostTest, BearsEveryRefusal) {
    const std::vector<Act> acts = pageActs();
    OtherHost host;
    host.openWhole();
    host.agrees = false;
    for (const Act& act : acts) {
        host.rest();
        act.act(host);
        EXPECT_FALSE(QApplication::activeModalWidget()) << act.name;
    }
    host.rest();
    host.run("wrentabledialog.onOpen()");  // one of the calls was the page's answer to a close
    expectWhole(host);
}

TEST_F(OtherHostTest, MayBeDestroyedAtEachOfTheMoments) {
    std::vector<Act> acts{Opened, OpenedAgain, Activated, Closed};
    for (const Act& act : pageActs()) {
        acts.push_back(act);
    }
    Operations missing(Moments.begin(), Moments.end());
    std::optional<OtherHost> host;
    int loads = 0;
    for (const Act& act : acts) {
        int left = 0;
        for (int count = 1; left <= 0; ++count) {
            if (!host || !host->plugin) {
                host.emplace();
                ++loads;
            }
            host->rest();
            act.prepare(*host);
            left = count;
            host->onCall = [&](const QByteArray& operation, bool) {
                if (!Moments.contains(operation) || --left != 0) {
                    return;
                }
                missing.remove(operation);
                host->unload();
            };
            act.act(*host);
            QCoreApplication::processEvents();
            host->onCall = nullptr;
            EXPECT_TRUE(left > 0 || visibleWindows().isEmpty()) << act.name << ", " << count;
        }
    }
    host.reset();
    EXPECT_EQ(missing, Operations());
    expectNothingLeft(loads);
}

/// A camera keeps the plug-in waiting, at each call of the load; no later step goes to a camera then.
TEST_F(OtherHostTest, MayBeDestroyedWhileItWaitsForACamera) {
    int waits = 0;
    for (bool tried = true; tried; ++waits) {
        OtherHost host;
        host.cameras[0]->state.lowLight = true;
        host.prefs["wren/settings/triggerInEnable"] = true;
        std::atomic<int> calls{0};
        QSemaphore gone;
        QByteArray waiting;
        std::mutex mutex;
        Operations later;
        host.onWorkerCall = [&](const QByteArray& operation) {
            const int call = ++calls;
            if (call == waits + 1) {
                waiting = operation;
                QTimer::singleShot(0, qApp, [&] {
                    host.unload();
                    gone.release();
                });
                gone.acquire();
            } else if (call > waits + 1 && !host.plugin) {
                const std::lock_guard lock(mutex);
                later << operation;
            }
        };
        host.open();
        tried = calls > waits;
        const Operations steps{"DOC_Control::setPortSignal", "DOC_Control::setResolutionLock",
                               "DOC_Control::setLowLightType"};
        EXPECT_LE(later.intersect(steps).size(), 1) << "none after that of " << waiting.toStdString();
        EXPECT_TRUE(host.cameras[0]->state.lowLight);
        EXPECT_TRUE(!tried || visibleWindows().isEmpty()) << waiting.toStdString();
        host.onWorkerCall = nullptr;
    }
    EXPECT_GT(waits, 20);
    expectNothingLeft(waits);
}

TEST_F(OtherHostTest, MayBeDestroyedInTheBoxOfItsFailure) {
    int destroyed = 0;
    for (const Act& act : {Opened, OpenedAgain, Closed}) {
        for (const QByteArray& operation : operationsOf(act)) {
            OtherHost host;
            act.prepare(host);
            host.onCall = [&](const QByteArray& name, bool) {
                if (name == operation) {
                    throw std::runtime_error("no answer");
                }
                if (name != "ZebHost::errorHandler") {
                    return;
                }
                ++destroyed;
                host.unload();
            };
            act.act(host);
            QCoreApplication::processEvents();
            EXPECT_TRUE(host.plugin || visibleWindows().isEmpty()) << act.name << ", " << operation.toStdString();
        }
    }
    EXPECT_GT(destroyed, 50);
    expectNothingLeft(destroyed);
}

TEST_F(OtherHostTest, MayBeDestroyedWhileItsPageLoads) {
    for (const char* signal : {SIGNAL(loadProgress(int)), SIGNAL(loadFinished(bool))}) {
        OtherHost host;
        host.open();
        EXPECT_TRUE(QSignalSpy(host.view, signal).wait()) << signal;
        host.unload();
        EXPECT_EQ(visibleWindows(), QStringList()) << signal;
        EXPECT_FALSE(host.prefs[RecAll].toBool()) << signal;
    }
}

namespace {

/// How a table stands that is to end.
struct Standing {
    const char* sentence;
    std::function<void(OtherHost&)> open;
    /// What the user is told at the opening, and at the end.
    QStringList told;
    bool hasPage = true;
};

const Standing Standings[] = {
    {"before its page has loaded", [](OtherHost& host) { host.open(); }, {}},
    {"when its page has failed",
     [](OtherHost& host) {
         host.open();
         host.view->stop();
     },
     {},
     false},
    {"while a text box has the keyboard",
     [](OtherHost& host) {
         host.openWhole();
         host.run("wrentabledialog.setTextBoxFocusState(true)");
         EXPECT_TRUE(host.textBoxFocused);
     },
     {}},
    {"with cameras that fail and the bar on the screen",
     [](OtherHost& host) {
         for (const int camera : {0, 2}) {
             const auto fails = [](bool) { throw std::runtime_error("no answer"); };
             host.cameras[camera]->doc.lockPart.onSetParamLock = fails;
             host.cameras[camera]->doc.framesPart.onSetRecordCheck = fails;
         }
         host.openWhole();
         host.run("wrentabledialog.showReadyProgress()");
         EXPECT_EQ(visibleWindows().size(), 2);
     },
     {"Camera 1: no answer\nCamera 3: no answer"}},
};

}  // namespace

TEST_F(OtherHostTest, EndsItsSessionHoweverItCloses) {
    for (const Standing& standing : Standings) {
        for (const bool destroyed : {false, true}) {
            SCOPED_TRACE(std::string(standing.sentence) + (destroyed ? ", destroyed" : ", closed"));
            OtherHost host;
            OtherHost::Camera::State& healthy = host.cameras[1]->state;
            healthy.locked = true;
            standing.open(host);
            EXPECT_FALSE(healthy.locked);
            EXPECT_TRUE(host.prefs[RecAll].toBool());
            EXPECT_EQ(host.errors, standing.told);
            host.errors.clear();
            healthy.locked = healthy.checked = true;
            destroyed ? host.unload() : host.close();
            EXPECT_FALSE(healthy.locked || healthy.checked);
            host.running = host.running && !destroyed;
            expectOver(host);
            EXPECT_EQ(activeTimers(host.prefs["wren/table/interval"].toInt()), 0);
            if (destroyed) {
                continue;
            }
            EXPECT_EQ(host.errors, standing.told);
            standing.hasPage ? host.openWhole() : host.open();
            EXPECT_TRUE(host.prefs[RecAll].toBool());
            if (standing.hasPage) {
                expectWhole(host);
            }
        }
    }
}
