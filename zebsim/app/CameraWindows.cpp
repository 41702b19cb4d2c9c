#include "CameraWindows.h"

#include "Camera.h"
#include "CameraView.h"
#include "CameraWindow.h"
#include "Clock.h"
#include "EffectPanel.h"
#include "FaultMenu.h"
#include "ImageArea.h"
#include "ImageEffects.h"
#include "SimHost.h"
#include "UiText.h"

#include <QScopedValueRollback>
#include <QtDebug>

#include <algorithm>

namespace {

constexpr int LeastInterval = 100;
/// Many windows take turns less often, so that they cost no more than a few.
constexpr int IntervalForEach = 8;

ImagePose poseOf(const CameraState& state) {
    return {state.rotation, state.flipHorizontal, state.flipVertical, state.zoom};
}

}  // namespace

CameraWindows::CameraWindows(SimHost& host, ImageArea& area) : m_host(host), m_area(area) {
    connect(&host.events(), &HostEvents::camerasReplaced, this, [this] {
        m_playback.reset();
        removeAll();
        follow();
    });
    connect(&host.events(), &HostEvents::somethingRecorded, this, [this] { m_playback.reset(); });
    connect(&host.events(), &HostEvents::liveImageWanted, this, &CameraWindows::showFresh);
    connect(&host.events(), &HostEvents::modeChanged, this, &CameraWindows::showNow);
    connect(&host.events(), &HostEvents::updateFinished, this, &CameraWindows::follow);
    connect(&host.events(), &HostEvents::pluginWanted, this, [this](const QString& name) {
        const CameraWindow* window = find(m_host.docManager().currentKey());
        if (window != nullptr && findImageEffect(name) != nullptr) {
            window->effects().show();
        }
    });
    connect(&area, &QMdiArea::subWindowActivated, this, &CameraWindows::windowActivated);
    connect(&m_timer, &QTimer::timeout, this, &CameraWindows::showNow);
    m_timer.start(LeastInterval);
    follow();
}

void CameraWindows::follow() {
    if (m_changing) {
        return;
    }
    const QScopedValueRollback<bool> changing(m_changing, true);
    addAndRemove();
    const bool isBlocked = m_host.flags().isOn(StatusFlags::IsOtherPluginOpen) || m_host.saver().isBgSaving();
    forEach([this, isBlocked](const Camera& camera, CameraWindow& window) {
        const QString title = titleOf(camera);
        if (window.windowTitle() != title) {
            window.setWindowTitle(title);
        }
        window.view().setMarked(camera.get(&CameraState::selected));
        window.effects().follow(camera, isBlocked);
        showEffects(camera, window);
    });
    activateCurrent();
    m_area.setEmptyText(emptyText());
}

/// The name, what is wrong on purpose, and that a picture of the window shows no real camera.
QString CameraWindows::titleOf(const Camera& camera) const {
    // Alone the three letters are Qt's mark of a changed document.
    const QString name = QString(camera.name()).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    if (camera.isFile()) {
        return name;
    }
    const QStringList faults = plantedFaults(m_host, camera.key());
    return faults.isEmpty() ? name : QString(name % QLatin1String(": ") % faults.join(QLatin1String(", ")));
}

/// Another rig's cameras may have the same keys.
void CameraWindows::removeAll() {
    for (CameraWindow* window : qAsConst(m_windows)) {
        m_area.removeSubWindow(window);
        window->deleteLater();
    }
    m_windows.clear();
}

/// An image that stands shows what plug-ins make of it by now.
void CameraWindows::showEffects(const Camera& camera, CameraWindow& window) const {
    std::optional<CameraFrame> frame = window.view().frame();
    const FrameEffects effects = effectsOf(camera.state(), m_host.getOperatingMode());
    if (frame && frame->effects != effects) {
        frame->effects = effects;
        window.view().showFrame(frame, poseOf(camera.state()), {});
    }
}

void CameraWindows::addAndRemove() {
    const DocKeyList wanted = m_host.cameras().keysOf(&CameraState::connected);
    const DocKeyList present = m_windows.keys();
    if (wanted == present) {
        return;
    }
    for (const DOCKEY key : present) {
        if (wanted.contains(key)) {
            continue;
        }
        CameraWindow* window = m_windows.take(key);
        m_area.removeSubWindow(window);
        // This may run inside an event of the window.
        window->deleteLater();
    }
    for (const DOCKEY key : wanted) {
        if (m_windows.contains(key)) {
            continue;
        }
        CameraWindow* window = makeWindow(key);
        m_windows.insert(key, window);
        m_area.addSubWindow(window);
        // The area has given it buttons to close and to minimise, which leave no room for a name.
        window->setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                               Qt::WindowMaximizeButtonHint);
        window->show();
    }
    m_active = m_area.activeSubWindow();
    m_current = nullptr;
    QList<QMdiSubWindow*> inOrder;
    for (CameraWindow* window : qAsConst(m_windows)) {
        inOrder << window;
    }
    m_area.tile(inOrder);
    m_timer.setInterval(std::max(LeastInterval, m_windows.size() * IntervalForEach));
}

CameraWindow* CameraWindows::makeWindow(DOCKEY key) {
    auto* window = new CameraWindow(key);
    if (key < CameraBank::FirstFileKey) {
        window->addMenu(*new FaultMenu(m_host, key, window));
    }
    EffectPanel* effects = &window->effects();
    connect(effects, &EffectPanel::switched, this, [this, key](const QString& plugin, bool on) {
        if (Camera* camera = m_host.cameras().find(key)) {
            qInfo() << "Image plug-in:" << camera->name() << plugin << (on ? "on" : "off");
            camera->setPluginEffective(plugin, on);
        }
        m_host.updates().request();
        showNow();
    });
    connect(effects, &EffectPanel::changed, this, [this, key](const QString& plugin, const QVector<int>& values) {
        if (Camera* camera = m_host.cameras().find(key)) {
            qInfo() << "Image plug-in:" << camera->name() << plugin << values;
            camera->setPluginValues(plugin, findImageEffect(plugin)->plain(values));
        }
        showNow();
    });
    return window;
}

void CameraWindows::toggleEffects() {
    if (const CameraWindow* window = find(m_host.docManager().currentKey())) {
        EffectPanel& effects = window->effects();
        effects.setVisible(effects.isHidden());
    }
}

void CameraWindows::activateCurrent() {
    CameraWindow* current = find(m_host.docManager().currentKey());
    if (current == m_current) {
        return;
    }
    m_current = current;
    if (current != nullptr) {
        m_area.setActiveSubWindow(current);
    }
    m_active = m_area.activeSubWindow();
}

void CameraWindows::windowActivated(QMdiSubWindow* window) {
    // The area also raises windows by itself: a new one, and the old one when the application comes to the front.
    if (m_changing || window == nullptr || window == m_active) {
        return;
    }
    m_active = window;
    const DOCKEY chosen = static_cast<CameraWindow*>(window)->key();
    if (chosen == m_host.docManager().currentKey()) {
        return;
    }
    m_host.docManager().selectOnly({chosen});
    m_host.updates().request();
}

void CameraWindows::showNow() {
    follow();
    const qint64 now = m_host.clock().now();
    const qint64 passed = m_host.player().isPaused() ? 0 : now - m_shownAt;
    m_shownAt = now;
    forEach([&](const Camera& camera, CameraWindow& window) { showImage(camera, window, passed); });
    Q_EMIT shown();
}

void CameraWindows::showFresh() {
    const QScopedValueRollback<bool> fresh(m_fresh, true);
    showNow();
}

void CameraWindows::forEach(const std::function<void(const Camera&, CameraWindow&)>& work) const {
    for (CameraWindow* window : m_windows) {
        if (const Camera* camera = m_host.cameras().find(window->key())) {
            work(*camera, *window);
        }
    }
}

void CameraWindows::showImage(const Camera& camera, CameraWindow& window, qint64 passed) {
    const CameraState state = camera.state();
    std::optional<CameraFrame> frame;
    if (!m_host.isLiveMode()) {
        frame = recordedFrame(camera, passed);
    } else if (window.view().frame() && !m_fresh && (state.stopLive || m_host.liveLoop().isLivePaused())) {
        frame = window.view().frame();
    } else {
        frame = CameraFrame::live(state, SensorNoise::of(camera), m_shownAt);
    }
    window.view().showItems(camera.customInfo(!m_host.isLiveMode()));
    window.view().showFrame(frame, poseOf(state), uiText("Nothing is recorded"));
}

std::optional<CameraFrame> CameraWindows::recordedFrame(const Camera& camera, qint64 passed) {
    const std::optional<Recording> recording = camera.recording();
    if (!recording) {
        return std::nullopt;
    }
    if (camera.get(&CameraState::playing)) {
        m_playback.advance(camera.key(), *recording, passed);
    }
    return CameraFrame::recorded(camera.state(), SensorNoise::of(camera), *recording,
                                 m_playback.frame(camera.key(), *recording));
}

QString CameraWindows::emptyText() const {
    return m_host.isFileMode() ? uiText("No file is open") : uiText("No camera is connected");
}
