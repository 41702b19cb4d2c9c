#pragma once

#include <QToolBar>

#include <optional>

class Camera;
class CameraWindows;
class ElidedLabel;
class QLabel;
class QSlider;
class SimHost;

/// Plays what the current camera has recorded, and tells its shown items of custom information. Stands in the window in
/// memory mode, and in file mode while a recording is open.
class PlayerBar : public QToolBar {
    Q_OBJECT

public:
    /// Both must outlive the bar.
    PlayerBar(SimHost& host, CameraWindows& windows, QWidget* parent);

private:
    Camera* current() const;
    void modeChanged(int mode);
    void play(bool on);
    void seek(int frame);
    void refresh();

    SimHost& m_host;
    CameraWindows& m_windows;
    QAction* m_play;
    QSlider* m_position;
    QLabel* m_frame;
    ElidedLabel* m_items;
    std::optional<bool> m_isWanted;
};
