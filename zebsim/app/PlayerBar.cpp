#include "PlayerBar.h"

#include "Camera.h"
#include "CameraFrame.h"
#include "CameraWindows.h"
#include "ElidedLabel.h"
#include "OneLine.h"
#include "SimHost.h"
#include "UiText.h"

#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>

namespace {

void stopAll(const std::vector<Camera*>& cameras) {
    for (Camera* camera : cameras) {
        camera->set(&CameraState::playing, false);
    }
}

/// The icon in the colour of the button's text: those of the style are made for light grounds.
QIcon iconOf(const QWidget& button, QStyle::StandardPixmap which, const QSize& size) {
    QPixmap picture = button.style()->standardIcon(which).pixmap(size);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), button.palette().color(QPalette::ButtonText));
    return picture;
}

}  // namespace

PlayerBar::PlayerBar(SimHost& host, CameraWindows& windows, QWidget* parent)
    : QToolBar(uiText("Player"), parent),
      m_host(host),
      m_windows(windows),
      m_play(addAction(uiText("Play"))),
      m_position(new QSlider(Qt::Horizontal, this)),
      m_frame(new QLabel(this)),
      m_items(new ElidedLabel(this)) {
    setObjectName(QStringLiteral("player"));
    setMovable(false);
    m_play->setObjectName(QStringLiteral("play"));
    m_play->setCheckable(true);
    m_position->setObjectName(QStringLiteral("position"));
    m_frame->setObjectName(QStringLiteral("frame"));
    m_frame->setTextFormat(Qt::PlainText);
    m_frame->setMinimumWidth(30 * fontMetrics().averageCharWidth());
    m_items->setObjectName(QStringLiteral("items"));
    for (QLabel* label : {m_frame, static_cast<QLabel*>(m_items)}) {
        label->setStyleSheet(QStringLiteral("background: transparent"));
    }
    addWidget(m_position);
    addWidget(m_frame);
    addWidget(m_items);
    connect(m_play, &QAction::triggered, this, &PlayerBar::play);
    connect(m_position, &QSlider::valueChanged, this, &PlayerBar::seek);
    connect(&host.events(), &HostEvents::modeChanged, this, &PlayerBar::modeChanged);
    connect(&windows, &CameraWindows::shown, this, &PlayerBar::refresh);
    modeChanged(host.getOperatingMode());
}

Camera* PlayerBar::current() const {
    Camera* camera = m_host.cameras().find(m_host.docManager().currentKey());
    return camera != nullptr && camera->get(&CameraState::connected) && camera->recording() ? camera : nullptr;
}

void PlayerBar::modeChanged(int mode) {
    if (mode != zeb::MemoryMode) {
        stopAll(m_host.cameras().ofRig());
    }
    if (mode != zeb::FileMode) {
        stopAll(m_host.cameras().files());
    }
    refresh();
}

void PlayerBar::play(bool on) {
    if (Camera* camera = current()) {
        camera->set(&CameraState::playing, on);
    }
    m_host.updates().request();
    refresh();
}

void PlayerBar::seek(int frame) {
    const Camera* camera = current();
    if (camera == nullptr) {
        return;
    }
    m_windows.playback().seek(camera->key(), frame);
    m_windows.showNow();
}

void PlayerBar::refresh() {
    const bool isWanted = m_host.isMemoryMode() || (m_host.isFileMode() && !m_host.cameras().files().empty());
    if (m_isWanted != isWanted) {
        m_isWanted = isWanted;
        setVisible(isWanted);
    }
    const Camera* camera = current();
    m_play->setEnabled(camera != nullptr);
    m_position->setEnabled(camera != nullptr);
    const bool isPlaying = camera != nullptr && camera->get(&CameraState::playing);
    m_play->setChecked(isPlaying);
    m_play->setText(isPlaying ? uiText("Pause") : uiText("Play"));
    m_play->setIcon(
        iconOf(*widgetForAction(m_play), isPlaying ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay, iconSize()));
    m_frame->clear();
    if (camera == nullptr) {
        m_items->setTexts({}, {});
        return;
    }
    const Recording recording = *camera->recording();
    const int frame = m_windows.playback().frame(camera->key(), recording);
    const QSignalBlocker ownChange(m_position);
    m_position->setRange(recording.first, recording.last);
    m_position->setValue(frame);
    const CameraFrame shown = CameraFrame::recorded(camera->state(), SensorNoise::of(*camera), recording, frame);
    m_frame->setText(uiText("%1: frame %2").arg(shown.camera, QString::number(shown.number)));
    const QStringList items = recording.customInfo.shownTexts();
    m_items->setTexts(inOneLine(items.join(QStringLiteral("   "))), items.join(QLatin1Char('\n')));
}
