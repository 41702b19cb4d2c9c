#pragma once

class ZebHost;
struct TableState;

/// The dialogs by which the settings of the cameras are loaded and saved, in live mode only. Both run event loops: the
/// host must outlive them. They throw while a camera is in low light mode, and what the host throws. GUI thread.
class SettingsFiles {
public:
    SettingsFiles(ZebHost& host, TableState& state) : m_host(host), m_state(state) {}

    /// A camera that the load has connected is prepared as any that connects.
    void load();
    void save();

private:
    ZebHost& m_host;
    TableState& m_state;
};
