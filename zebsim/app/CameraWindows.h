#pragma once

#include "Playback.h"
#include "ZebTypes.h"

#include <QMap>
#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

class Camera;
class CameraWindow;
class ImageArea;
class QMdiSubWindow;
class SimHost;
struct CameraFrame;

/// The image windows of the connected cameras: live images in live mode, recorded frames in memory mode; those of the
/// recordings that are open in file mode. The window in front is that of the current camera, whichever of the two
/// changes.
class CameraWindows : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the object.
    CameraWindows(SimHost& host, ImageArea& area);

    Playback& playback() { return m_playback; }
    const Playback& playback() const { return m_playback; }
    /// Takes over which cameras there are and how they are named and selected.
    void follow();
    /// Follows, and shows what the cameras see at this time of the host's clock.
    void showNow();
    /// Shows the image plug-ins in the window of the current camera, or hides them.
    void toggleEffects();
    /// Null when the camera has no window.
    CameraWindow* find(DOCKEY key) const { return m_windows.value(key); }

Q_SIGNALS:
    /// The windows show their images of now.
    void shown();

private:
    void forEach(const std::function<void(const Camera&, CameraWindow&)>& work) const;
    void addAndRemove();
    void removeAll();
    QString titleOf(const Camera& camera) const;
    CameraWindow* makeWindow(DOCKEY key);
    void showEffects(const Camera& camera, CameraWindow& window) const;
    void activateCurrent();
    void windowActivated(QMdiSubWindow* window);
    /// Shows one new image of each camera whose live images stand.
    void showFresh();
    void showImage(const Camera& camera, CameraWindow& window, qint64 passed);
    std::optional<CameraFrame> recordedFrame(const Camera& camera, qint64 passed);
    QString emptyText() const;

    SimHost& m_host;
    ImageArea& m_area;
    QTimer m_timer;
    Playback m_playback;
    QMap<DOCKEY, CameraWindow*> m_windows;
    /// The windows of the current camera and in front, as they were last seen; only to be compared.
    CameraWindow* m_current = nullptr;
    QMdiSubWindow* m_active = nullptr;
    qint64 m_shownAt = 0;
    bool m_changing = false;
    /// Live images that stand are taken anew.
    bool m_fresh = false;
};
