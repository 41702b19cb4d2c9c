#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>

class AppWindows;
class CameraWindows;
class ImageArea;
class LogStore;
class PluginSlot;
class QActionGroup;
class QLabel;
class QMdiArea;
class QMenu;
class QToolBar;
class SimHost;

/// The viewer's window: menus, plug-in buttons, mode and style in the tool bar, images in the middle, the log below.
class ViewerWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Both must outlive the window.
    ViewerWindow(SimHost& host, const LogStore& log);
    ~ViewerWindow() override;

    /// Gives the plug-in a button of its name in the tool bar. The slot must outlive the window.
    void addPlugin(PluginSlot& slot);
    /// Entries that save, and those for the application's dialogs, as buttons too. They must live until the
    /// application's event loop has ended.
    void addDialogs(AppWindows& windows);
    /// A menu more, before those that every program has. Only after `addDialogs`.
    QMenu& addMenu(const QString& title);
    QMdiArea* mdiArea() const;
    CameraWindows& images() { return *m_images; }

Q_SIGNALS:
    /// The user wants to leave. The window stays until the application has closed down.
    void closeAsked();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addModeSwitch();
    void addStyleSwitch();
    QAction* addChoice(QActionGroup* group, const QString& text, const QString& name);
    QAction* addEntry(QMenu* menu, const QString& text, const char* name, const std::function<void()>& work);
    void refresh();

    SimHost& m_host;
    ImageArea* m_area;
    QMenu* m_fileMenu;
    QMenu* m_cameraMenu;
    QMenu* m_viewMenu;
    QToolBar* m_bar;
    QActionGroup* m_modes;
    QActionGroup* m_styles;
    QAction* m_customInfo = nullptr;
    QAction* m_closeRecordings = nullptr;
    QAction* m_liftFaults = nullptr;
    QAction* m_settingsMenu = nullptr;
    /// Those that load and save the settings of the cameras.
    QList<QAction*> m_settings;
    QLabel* m_cameras;
    std::unique_ptr<CameraWindows> m_images;
};
