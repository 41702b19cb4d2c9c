#pragma once

#include <QMainWindow>

class LogStore;
class PluginSlot;
class QActionGroup;
class QLabel;
class QMdiArea;
class QToolBar;
class SimHost;

/// The viewer's window: plug-in buttons, mode and style in the tool bar, images in the middle, the log below.
class ViewerWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Both must outlive the window.
    ViewerWindow(SimHost& host, const LogStore& log);

    /// Gives the plug-in a button of its name in the tool bar. The slot must outlive the window.
    void addPlugin(PluginSlot& slot);
    QMdiArea* mdiArea() const { return m_mdi; }

Q_SIGNALS:
    /// The user wants to leave. The window stays until the application has closed down.
    void closeAsked();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addModeSwitch();
    void addStyleSwitch();
    QAction* addChoice(QActionGroup* group, const QString& text, const QString& name);
    void refresh();

    SimHost& m_host;
    QMdiArea* m_mdi;
    QToolBar* m_bar;
    QActionGroup* m_modes;
    QActionGroup* m_styles;
    QLabel* m_cameras;
};
