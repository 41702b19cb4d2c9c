#include "ViewerWindow.h"

#include "AppWindows.h"
#include "Camera.h"
#include "CameraWindows.h"
#include "DialogRun.h"
#include "EditMenu.h"
#include "FaultMenu.h"
#include "HostKeys.h"
#include "ImageArea.h"
#include "KeysDialog.h"
#include "LogDock.h"
#include "MediaMenu.h"
#include "PlayerBar.h"
#include "PluginButton.h"
#include "SaveKeys.h"
#include "SimHost.h"
#include "Style.h"
#include "UiText.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>

namespace {

constexpr QSize FirstSize{1280, 800};
const QString StyleKey = QStringLiteral("env/style");

}  // namespace

ViewerWindow::ViewerWindow(SimHost& host, const LogStore& log)
    : m_host(host),
      m_area(new ImageArea(this)),
      m_fileMenu(menuBar()->addMenu(uiText("&File"))),
      m_cameraMenu(menuBar()->addMenu(uiText("&Camera"))),
      m_viewMenu(menuBar()->addMenu(uiText("&View"))),
      m_bar(addToolBar(uiText("Tools"))),
      m_modes(new QActionGroup(this)),
      m_styles(new QActionGroup(this)),
      m_cameras(new QLabel(this)) {
    setWindowTitle(uiText("ZEB (simulated cameras)"));
    resize(FirstSize);
    setCentralWidget(m_area);
    m_bar->setObjectName(QStringLiteral("tools"));
    m_bar->setMovable(false);
    auto* edit = new QMenu(uiText("&Edit"), this);
    menuBar()->insertMenu(m_cameraMenu->menuAction(), edit);
    new EditMenu(host, *edit);
    m_cameraMenu->addActions((new HostKeys(host, *m_bar))->actions());
    m_bar->addSeparator();
    addModeSwitch();
    m_bar->addSeparator();
    m_viewMenu->addSeparator();
    addStyleSwitch();
    m_images = std::make_unique<CameraWindows>(host, *m_area);
    m_viewMenu->addSeparator();
    addEntry(m_viewMenu, uiText("Image plug-ins of the camera"), "effects", [this] { m_images->toggleEffects(); });
    addToolBarBreak();
    addToolBar(new PlayerBar(host, *m_images, this));
    addDockWidget(Qt::BottomDockWidgetArea, new LogDock(log, host.journal(), this));
    statusBar()->addWidget(m_cameras);
    connect(&host.events(), &HostEvents::updateFinished, this, &ViewerWindow::refresh);
    connect(&host.events(), &HostEvents::camerasReplaced, this, &ViewerWindow::refresh);
    connect(&host.events(), &HostEvents::modeChanged, this, &ViewerWindow::refresh);
    connect(m_images.get(), &CameraWindows::shown, this, &ViewerWindow::refresh);
    refresh();
}

ViewerWindow::~ViewerWindow() = default;

QMdiArea* ViewerWindow::mdiArea() const {
    return m_area;
}

QMenu& ViewerWindow::addMenu(const QString& title) {
    auto* menu = new QMenu(title, this);
    menuBar()->insertMenu(m_settingsMenu, menu);
    return *menu;
}

void ViewerWindow::addPlugin(PluginSlot& slot) {
    auto* first = m_bar->actions().value(0);
    m_bar->insertWidget(first, new PluginButton(m_host, slot, m_bar));
    m_bar->insertSeparator(first);
}

void ViewerWindow::addModeSwitch() {
    const QStringList names = {uiText("Live"), uiText("Memory"), uiText("File")};
    for (int mode = zeb::LiveMode; mode <= zeb::FileMode; ++mode) {
        QAction* action = addChoice(m_modes, names.at(mode), QStringLiteral("mode%1").arg(mode));
        connect(action, &QAction::triggered, this, [this, mode] { m_host.appStatus().enterMode(mode); });
    }
}

void ViewerWindow::addStyleSwitch() {
    const QStringList styles = {QStringLiteral("light"), QStringLiteral("dark")};
    const QStringList names = {uiText("Light"), uiText("Dark")};
    for (int i = 0; i < styles.size(); ++i) {
        QAction* action = addChoice(m_styles, names.at(i), styles.at(i));
        connect(action, &QAction::triggered, this, [this, style = styles.at(i)] {
            m_host.prefs().setValue(StyleKey, style);
            m_host.updates().request();
        });
    }
}

void ViewerWindow::addDialogs(AppWindows& windows) {
    m_bar->addSeparator();
    m_fileMenu->addActions((new SaveKeys(m_host, windows, *m_bar))->actions());
    m_fileMenu->addSeparator();
    m_settings = {
        addEntry(m_fileMenu, uiText("Load camera settings..."), "loadSettings", [&windows] { windows.loadSettings(); }),
        addEntry(m_fileMenu, uiText("Save camera settings..."), "saveSettings",
                 [&windows] { windows.saveSettings(); })};
    m_fileMenu->addSeparator();
    addEntry(m_fileMenu, uiText("Open recordings..."), "openRecordings", [&windows] { windows.openRecordings(); });
    m_closeRecordings = addEntry(m_fileMenu, uiText("Close recordings"), "closeRecordings",
                                 [this] { m_host.docManager().files().closeAll(); });
    new MediaMenu(m_host, windows, *m_fileMenu->addMenu(uiText("Media")));
    m_fileMenu->addSeparator();
    addEntry(m_fileMenu, uiText("&Quit"), "quit", [this] { Q_EMIT closeAsked(); });
    // Opened by a key a menu stands at its first entry, and that must not record.
    QAction* first = m_cameraMenu->actions().first();
    m_customInfo =
        addEntry(m_cameraMenu, uiText("Custom info..."), "customInfo", [&windows] { windows.editCustomInfo(); });
    m_cameraMenu->insertActions(
        first, {addEntry(m_cameraMenu, uiText("Add camera..."), "addCamera", [&windows] { windows.addCamera(); }),
                m_customInfo});
    m_cameraMenu->insertSeparator(first);
    m_cameraMenu->addSeparator();
    m_liftFaults = addEntry(m_cameraMenu, uiText("Lift all faults"), "liftFaults",
                            [this] { liftFaults(m_host, faultyCameras(m_host)); });
    QMenu* settings = menuBar()->addMenu(uiText("&Settings"));
    QMenu* help = menuBar()->addMenu(uiText("&Help"));
    m_bar->addSeparator();
    m_bar->addActions(
        {addEntry(settings, uiText("Preferences"), "preferences", [&windows] { windows.openPreferences(); }),
         addEntry(settings, uiText("Ethernet"), "ethernet", [&windows] { windows.openEthernetSettings(); }),
         addEntry(help, uiText("About ZEB"), "about", [&windows] { windows.openAbout(); })});
    QAction* keys = addEntry(help, uiText("Keys"), "keys", [this] { runDialog(m_host, new KeysDialog(*this)); });
    keys->setShortcut(Qt::Key_F1);
    m_settingsMenu = settings->menuAction();
}

QAction* ViewerWindow::addEntry(QMenu* menu, const QString& text, const char* name, const std::function<void()>& work) {
    QAction* action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, work);
    return action;
}

QAction* ViewerWindow::addChoice(QActionGroup* group, const QString& text, const QString& name) {
    QAction* action = group->addAction(text);
    action->setObjectName(name);
    action->setCheckable(true);
    m_bar->addAction(action);
    m_viewMenu->addAction(action);
    return action;
}

void ViewerWindow::refresh() {
    const HostCalls::Own own;
    const auto cameras = m_host.cameras().ofRig();
    const auto connected = std::count_if(cameras.begin(), cameras.end(),
                                         [](const Camera* camera) { return camera->get(&CameraState::connected); });
    m_cameras->setText(uiText("%1 cameras, %2 connected").arg(cameras.size()).arg(connected));
    if (m_customInfo != nullptr) {
        // At its end a recording brings another mode, in which the lists are others.
        m_customInfo->setEnabled(!m_host.isFileMode() && !m_host.recorder().isUnderWay() &&
                                 m_host.docManager().getSelectedDocCount() > 0);
    }
    if (m_closeRecordings != nullptr) {
        m_closeRecordings->setEnabled(!m_host.cameras().files().empty());
    }
    if (m_liftFaults != nullptr) {
        m_liftFaults->setEnabled(!faultyCameras(m_host).isEmpty());
    }
    for (QAction* entry : qAsConst(m_settings)) {
        entry->setEnabled(m_host.isLiveMode() && !m_host.recorder().isUnderWay() && connected > 0);
    }
    const QList<QAction*> modes = m_modes->actions();
    modes.at(m_host.getOperatingMode())->setChecked(true);
    // In another mode than live nobody could stop the cameras.
    for (QAction* mode : modes) {
        mode->setEnabled(mode == modes.at(zeb::LiveMode) || !m_host.recorder().isUnderWay());
    }
    const QString style = styleName(m_host);
    const QList<QAction*> styles = m_styles->actions();
    for (QAction* action : styles) {
        action->setChecked(action->objectName() == style);
    }
    if (property("style").toString() != style) {
        setProperty("style", style);
        applyNativeStyle(m_host, *this);
    }
}

void ViewerWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    Q_EMIT closeAsked();
}
