#include "CameraView.h"

#include "BackgroundRenderer.h"
#include "FramePicture.h"

#include <QPainter>

namespace {

constexpr int MarkWidth = 3;
const QColor Background(24, 26, 30);
const QColor Mark(46, 160, 255);

}  // namespace

bool ImagePose::operator==(const ImagePose& other) const {
    return rotation == other.rotation && flipHorizontal == other.flipHorizontal && flipVertical == other.flipVertical &&
           zoom == other.zoom;
}

CameraView::CameraView(QWidget* parent) : QWidget(parent), m_renderer(new BackgroundRenderer(this)) {
    connect(m_renderer, &BackgroundRenderer::made, this, qOverload<>(&CameraView::update));
    // Windows behind need not be drawn then.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(1, 1);
}

void CameraView::showFrame(const std::optional<CameraFrame>& frame, const ImagePose& pose, const QString& text) {
    if (m_frame == frame && m_pose == pose && m_text == text) {
        return;
    }
    m_frame = frame;
    m_pose = pose;
    m_text = text;
    update();
}

void CameraView::showItems(const CustomInfo& info) {
    if (m_items.setInfo(info)) {
        update();
    }
}

void CameraView::setMarked(bool marked) {
    if (m_marked == marked) {
        return;
    }
    m_marked = marked;
    update();
}

void CameraView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Background);
    if (m_frame) {
        const QRect image = drawImage(painter) & rect();
        m_items.paint(painter, image, width());
    } else {
        painter.setPen(Qt::lightGray);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_text);
    }
    if (m_marked) {
        painter.setPen(QPen(Mark, MarkWidth));
        const int half = MarkWidth / 2;
        painter.drawRect(rect().adjusted(half, half, -half - 1, -half - 1));
    }
}

/// One that takes long is the last that was made, until the newer one is.
QImage CameraView::picture(const QSize& size) {
    if (!BackgroundRenderer::isFor(*m_frame)) {
        return drawFrameOrFailure(*m_frame, size);
    }
    return m_renderer->latest(*m_frame, size);
}

QRect CameraView::drawImage(QPainter& painter) {
    QTransform pose;
    pose.rotate(m_pose.rotation * 360);
    pose.scale(m_pose.flipHorizontal ? -1 : 1, m_pose.flipVertical ? -1 : 1);
    const QRectF posed = pose.mapRect(QRectF({}, m_frame->resolution));
    const QSize shown = fitInto(size(), posed.size().toSize());
    if (shown.isEmpty()) {
        return {};
    }
    const double scale = shown.width() / posed.width();
    const QSizeF plain = QSizeF(m_frame->resolution) * scale;
    const QImage image = picture((plain * devicePixelRatioF()).toSize());
    painter.save();
    painter.translate(QRectF(rect()).center());
    painter.setTransform(pose, true);
    painter.scale(m_pose.zoom, m_pose.zoom);
    painter.drawImage(QRectF(QPointF(-plain.width() / 2, -plain.height() / 2), plain), image);
    painter.restore();
    QRect place({}, shown);
    place.moveCenter(rect().center());
    return place;
}
