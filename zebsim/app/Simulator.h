#pragma once

#include "LogStore.h"
#include "MessageBoxes.h"
#include "RealClock.h"
#include "SimHost.h"

#include <QTimer>

#include <functional>
#include <memory>

class AppWindows;
class PluginLoader;
class PluginSlot;
class ViewerWindow;
struct CommandLine;

/// The whole application behind its event loop: host, cameras, plug-in and window, made and closed down in order.
class Simulator {
public:
    /// Throws `JsonError` and `PluginError`.
    explicit Simulator(const CommandLine& line);
    /// Closes the plug-in's windows as at the end of the application, then takes everything apart.
    ~Simulator();
    Simulator(const Simulator&) = delete;
    Simulator& operator=(const Simulator&) = delete;

    LogStore& log() { return m_log; }
    RealClock& clock() { return m_clock; }
    SimHost& host() { return m_host; }
    AppWindows& windows() { return *m_windows; }
    ViewerWindow& window() { return *m_window; }
    /// Null when no plug-in was found.
    PluginSlot* plugin() { return m_slot.get(); }

    /// Runs the event loop until the application is left: first `work` in it, then what there was to tell at the start.
    int run(const std::function<void()>& work);
    /// Ends the event loop, and the message boxes that stand.
    void quit();

private:
    void beginClosing();
    void chooseLanguage(const QString& wanted);
    void loadPlugin(const CommandLine& line);

    /// Often enough for an end of a recording to come in time.
    static constexpr int RecorderInterval = 20;

    LogStore m_log;
    RealClock m_clock;
    MessageBoxes m_boxes;
    SimHost m_host;
    std::unique_ptr<PluginLoader> m_loader;
    std::unique_ptr<PluginSlot> m_slot;
    std::unique_ptr<ViewerWindow> m_window;
    std::unique_ptr<AppWindows> m_windows;
    QTimer m_recorderTimer;
};
