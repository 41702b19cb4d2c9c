#include "OtherHost.h"

#include "Files.h"
#include "HostPages.h"
#include "Until.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QFileDialog>
#include <QFutureWatcher>
#include <QLineEdit>
#include <QMessageBox>
#include <QThread>
#include <QWebFrame>

#include <gtest/gtest.h>

namespace {

OtherHost* current = nullptr;

}  // namespace

void called(const char* operation, bool mayThrow) {
    if (QThread::currentThread() != qApp->thread()) {
        if (current && current->onWorkerCall) {
            current->onWorkerCall(operation);
        }
    } else if (current && current->onCall) {
        current->onCall(operation, mayThrow);
    }
}

OtherHost::OtherHost() {
    EXPECT_FALSE(current) << "one at a time is called";
    current = this;
    initHostPages();
    write(m_folder.filePath("file"), "<job><TestNo>1</TestNo></job>");
    prepareModes();
    prepareDocuments();
    for (const DOCKEY key : {1, 2, 3}) {
        addCamera(key);
    }
    preparePrefs();
    prepareBoxes();
    prepareWorkers();
    preparePages();
    QObject::connect(&m_modals, &QTimer::timeout, [this] { lookForModal(); });
    m_modals.start(1);
    load();
}

OtherHost::~OtherHost() {
    onCall = nullptr;
    unload();
    QCoreApplication::processEvents();  // what the plug-in still had to clear away
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(m_library.unload());  // the texts that `prefs` has from it go later
    current = nullptr;
}

void OtherHost::load() {
    const auto make = reinterpret_cast<PLG_Interface* (*)()>(m_library.resolve("makeButtonPlugin"));
    ASSERT_TRUE(make) << m_library.errorString().toStdString();
    plugin.reset(make());
    plugin->setHost(this);
}

void OtherHost::open() {
    const std::function<void()> steps[] = {[this] { plugin->prepareOpen(); }, [this] { plugin->activate(); },
                                           [this] { plugin->getDialog(true); }, [this] { plugin->showDialog(); }};
    try {
        for (const auto& step : steps) {
            if (plugin) {
                step();
            }
        }
    } catch (const std::exception& e) {
        if (*e.what()) {
            errorHandler(e);
        }
    }
}

void OtherHost::openWhole() {
    open();
    EXPECT_TRUE(until([this] { return hasPage(); }));
    update();
}

void OtherHost::update() {
    updateUI(zeb::UpdateAll, true);
    EXPECT_TRUE(until([this] { return !m_owed; }));
}

QString OtherHost::run(const QString& script) {
    return view ? view->page()->mainFrame()->evaluateJavaScript(script).toString() : QString();
}

void OtherHost::show(int tab) {
    const QString active = "$('#tabs').tabs('option', 'active'%1)";
    if (run(active.arg("")).toInt() == tab) {
        return;
    }
    run(QString("void " + active).arg(", %1").arg(tab));
    update();
}

QStringList OtherHost::rows() {
    return run("Array.from(document.querySelectorAll(`#grid_${wrentabledialog_obj.activeGrid().name}_records "
               "tr[recid]`),"
               "           row => row.innerHTML.replace(' current=\"\"', '')).join('\\n')")
        .split('\n');
}

void OtherHost::rest() {
    for (const auto& camera : cameras) {
        camera->state = {};
    }
    mode = zeb::LiveMode;
}

void OtherHost::prepareModes() {
    onGetOperatingMode = [this] { return mode; };
    onIsLiveMode = [this] { return mode == zeb::LiveMode; };
    onIsMemoryMode = [this] { return mode == zeb::MemoryMode; };
    onIsFileMode = [this] { return mode == zeb::FileMode; };
    const auto enter = [this](int wanted) {
        return [this, wanted] {
            mode = wanted;
            updateUI(zeb::UpdateAll, true);
        };
    };
    appStatusPart.onEnterLiveMode = enter(zeb::LiveMode);
    appStatusPart.onEnterMemoryMode = enter(zeb::MemoryMode);
    appStatusPart.onSetWrenRunning = [this](bool on) { running = on; };
    appStatusPart.onIsWrenRunning = [this] { return running; };
    appStatusPart.onGetPlugin = [this](const QString& name) { return name == "wren" ? plugin.get() : nullptr; };
    appStatusPart.onClosePlugin = [this](const QString& name) {
        // Read here too, as a host may that has destroyed the plug-in.
        if (name.size() == 4 && plugin) {
            plugin->deactivate();
        }
    };
}

DocKeyList OtherHost::keys(bool Camera::State::*which) const {
    DocKeyList found;
    for (const auto& camera : cameras) {
        if (!which || camera->state.*which) {
            found.append(camera->doc.onGetKey());
        }
    }
    return found;
}

void OtherHost::prepareDocuments() {
    OtherZebDocManager& docs = docManagerPart;
    const auto find = [this](DOCKEY key) { return key - 1 < cameras.size() ? cameras[key - 1].get() : nullptr; };
    const auto docOf = [find](DOCKEY key) { return find(key) ? &find(key)->doc : nullptr; };
    docs.onGetDoc = [docOf](DOCKEY key, int) { return docOf(key); };
    docs.onGetDocAny = docOf;
    docs.onGetCurrentDoc = [docOf] { return docOf(1); };
    docs.onGetDocKeys = [this](int) { return keys(nullptr); };
    docs.onGetConnectedDocKeys = [this](int) { return keys(&Camera::State::connected); };
    docs.onGetLiveDocKeys = [this](int, int) { return keys(nullptr); };
    docs.onGetCameraDocs = [this] {
        DocList list;
        for (const auto& camera : cameras) {
            list.append(&camera->doc);
        }
        return list;
    };
    docs.onGetSyncableDocs = [this](int) { return docManagerPart.onGetCameraDocs(); };
    docs.onSelectDoc = [find](DOCKEY key) { find(key)->state.selected = true; };
    docs.onDeselectDoc = [find](DOCKEY key) { find(key)->state.selected = false; };
    docs.onConnectDocs = [find](const DocKeyList& list) {
        for (const DOCKEY key : list) {
            find(key)->state.connected = true;
        }
    };
    docs.onDisconnectDocs = [find](const DocKeyList& list) {
        for (const DOCKEY key : list) {
            find(key)->state.connected = false;
        }
    };
    docs.onSharesDeviceWithLockedHead = [](DOC_Interface*, bool, bool) { return true; };
    docs.onGetDocMutex = [this] { return &m_docMutex; };
}

void OtherHost::addCamera(DOCKEY key) {
    cameras.push_back(std::make_unique<Camera>());
    Camera& camera = *cameras.back();
    camera.doc.onGetKey = [key] { return key; };
    camera.doc.onIsConnected = [&camera] { return camera.state.connected; };
    camera.doc.onIsSelected = [&camera] { return camera.state.selected; };
    camera.doc.onGetAlerts = [] { return QStringList{"Hot"}; };
    camera.doc.onGetHeadDocs = [&camera](int) { return DocList{&camera.doc}; };
    camera.doc.lockPart.onIsParamLocked = [&camera] { return camera.state.locked; };
    camera.doc.lockPart.onSetParamLock = [&camera](bool lock) { camera.state.locked = lock; };
    camera.doc.framesPart.onGetFrameCount = [](int, int) { return 100; };
    camera.doc.framesPart.onGetLastFrame = camera.doc.framesPart.onGetFrameCount;
    camera.doc.framesPart.onIsRecordCheck = [&camera] { return camera.state.checked; };
    camera.doc.framesPart.onSetRecordCheck = [&camera](bool check) { camera.state.checked = check; };
    camera.doc.storagePart.onGetPluginNames = [] { return QStringList{"lut"}; };
    camera.doc.controlPart.onHasRecordedData = [&camera] { return camera.state.recorded; };
    camera.doc.controlPart.onEraseRecordedData = [&camera](int) { camera.state.recorded = false; };
    camera.doc.controlPart.onIsLowLightMode = [&camera] { return camera.state.lowLight; };
    camera.doc.controlPart.onSetLowLightMode = [&camera](bool on) { camera.state.lowLight = on; };
    camera.doc.controlPart.onGetPortSignal = [&camera](int index) {
        return index == 1 ? int(zeb::SignalOnCamPos) : camera.state.trigger;
    };
    camera.doc.controlPart.onSetPortSignal = [&camera](int, int signal) { camera.state.trigger = signal; };
    prepareControl(key, camera.doc.controlPart);
}

void OtherHost::prepareControl(DOCKEY key, OtherDOC_Control& control) {
    control.onGetCameraName = [key](int) { return QString("Camera %1").arg(key); };
    control.onGetAddress = [key](int) { return QString("10.0.0.%1").arg(key); };
    control.onIsFunctionSupported = [](int, int) { return true; };
    control.onHasSyncStatus = [] { return true; };
    control.onGetSyncStatusText = [] { return "Sync In"; };
    control.onGetPortList = [](int) { return QList<int>{1, 2}; };
    control.onGetRecordRate = [](int) { return 2000; };
    control.onGetRecordRateList = [] { return QList<unsigned int>{1000, 2000}; };
    control.onGetResolution = [] { return QSize(512, 512); };
    control.onGetResolutionList = [] { return QList<QSize>{{512, 512}, {1024, 1024}}; };
    control.onGetShutterSpeed = [] { return 2000; };
    control.onGetShutterSpeedEntries = [] { return QStringList{"2000;1/2000 sec;1"}; };
    control.onGetTriggerModeList = [] { return QList<int>{zeb::TriggerStart, zeb::TriggerManual}; };
}

QVariant OtherHost::pref(const QString& key, const QVariant& defaultValue) const {
    if (key.startsWith("wren/display/")) {
        return true;
    }
    return prefs.value(key, defaultValue);
}

void OtherHost::preparePrefs() {
    prefs = {{"alert/setsynchronization", true},
             {"alert/wren/multiheadlockalert", true},
             {"main/scrno", -1},
             {"wren/column_order/cameraInfo", "cameraName,lock,comment"},
             {"wren/settings/done", true},
             {"wren/settings/syncInEnable", true},
             {"wren/table/h", 700},
             {"wren/table/interval", 7},
             {"wren/table/w", 1300}};
    onGetPref = [this](const QString& key, const QVariant& value) { return pref(key, value); };
    onGetPrefInt = [this](const QString& key, const QVariant& value) { return pref(key, value).toInt(); };
    onGetPrefBool = [this](const QString& key, const QVariant& value) { return pref(key, value).toBool(); };
    onGetPrefFloat = [this](const QString& key, const QVariant& value) { return pref(key, value).toFloat(); };
    onGetPrefString = [this](const QString& key, const QVariant& value) { return pref(key, value).toString(); };
    onSetPref = [this](const QString& key, const QVariant& value) { prefs[key] = value; };
    onSetPrefInt = onSetPref;
    onSetPrefBool = onSetPref;
    onSetPrefFloat = onSetPref;
    onSetPrefString = onSetPref;
    onGetDefaultColumnOrder = [](int tab) { return tab == 0 ? "lock,cameraName" : ""; };
    onTranslate = [](const QString& text) { return text; };
}

void OtherHost::prepareBoxes() {
    onConfirm = [this](const QString&) { return agrees; };
    onConfirmModal = [this](const QString&, QWidget*, const ButtonTexts&) { return agrees; };
    onConfirmWithDontShowAgain = [this](const QString&, const QString&, QWidget*, const ButtonTexts&) {
        return agrees;
    };
    onErrorHandler = [this](const std::exception& e) { errors.append(QString::fromUtf8(e.what())); };
    onGetPrefsDialog = [this] { return &m_prefsDialog; };
    onSetTextBoxFocusState = [this](bool focused) { textBoxFocused = focused; };
}

void OtherHost::prepareWorkers() {
    cameraOpsPart.onSetReduceMode = [](const DocList&, bool) { throw std::runtime_error("no answer"); };
    onExecProgress = [this](const QString&, QFutureWatcherBase& watcher) {
        m_watched.release();
        QEventLoop loop;
        QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
        if (!watcher.isFinished()) {
            loop.exec();
        }
    };
    onExportSupportFile = [this](const QString&, const ZebSupportFile&) {
        m_watched.acquire();
        return true;
    };
    onGetSyncCapableCameraTypes = [] { return QList<int>{0}; };
    cameraOpsPart.onCanSync = [](const DocList&) { return true; };
    cameraOpsPart.onSyncCameras = [this](const DocList&, DOC_Interface*, int, bool, bool, int, int, int) {
        m_watched.acquire();
    };
}

/// The modal windows that the plug-in opens by itself.
void OtherHost::lookForModal() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == m_modal) {
        return;
    }
    m_modal = modal;
    if (!m_modal) {
        return;
    }
    const QByteArray window = modal->metaObject()->className();
    if (onCall) {
        onCall(window, false);
    }
    if (window == "GUI_SyncProgress") {
        m_watched.release();
    } else if (auto* dialog = qobject_cast<QDialog*>(m_modal)) {
        if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
            const bool asks = !files->testOption(QFileDialog::DontConfirmOverwrite);
            const bool isNew = asks && files->acceptMode() == QFileDialog::AcceptSave;
            const QString name = isNew ? QString("file%1").arg(++m_newFiles) : QString("file");
            files->findChild<QLineEdit*>("fileNameEdit")->setText(m_folder.filePath(name));
        }
        if (!agrees) {
            dialog->reject();
        } else if (qobject_cast<QMessageBox*>(dialog)) {
            dialog->done(QMessageBox::Ok);
        } else {
            dialog->accept();
        }
    }
}

void OtherHost::preparePages() {
    onGetAppObject = [this] { return &m_pageObject; };
    onGetMainObject = onGetAppObject;
    onAttachBridge = [this](QWebView* of, ZebPageBridge* attached) {
        attached->setView(of);
        QWebFrame* frame = of->page()->mainFrame();
        QObject::connect(frame, &QWebFrame::javaScriptWindowObjectCleared, attached, [frame, attached] {
            frame->addToJavaScriptWindowObject(attached->bridgeName(), attached, QWebFrame::QtOwnership);
            attached->addPrefsJSObject();
        });
        if (!view) {  // the first is the table's
            view = of;
            bridge = attached;
        }
    };
    onUpdateUI = [this](unsigned int, bool) {
        if (std::exchange(m_owed, true)) {
            return;
        }
        QMetaObject::invokeMethod(
            &m_pageObject, [this] { runCycle(); }, Qt::QueuedConnection);
    };
    onDeterUpdateUI = [this](bool deter) {
        m_deterred += deter ? 1 : -1;
        if (m_deterred == 0 && std::exchange(m_owed, false)) {
            onUpdateUI(zeb::UpdateAll, true);
        }
    };
}

void OtherHost::runCycle() {
    if (m_deterred > 0) {
        return;
    }
    m_owed = false;
    try {
        if (plugin) {
            plugin->updateDialog(mode);
        }
    } catch (const std::exception& e) {
        onErrorHandler(e);
    }
}
