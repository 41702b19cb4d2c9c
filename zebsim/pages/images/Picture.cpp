#include "Picture.h"

#include <stdexcept>

Picture::Picture(int width, int height) : m_image(width, height, QImage::Format_ARGB32) {
    m_image.fill(Qt::transparent);
    m_painter.begin(&m_image);
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void Picture::pen(const QColor& colour, qreal width) {
    m_painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    m_painter.setBrush(Qt::NoBrush);
}

void Picture::fill(const QColor& colour) {
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(colour);
}

void Picture::roundedBox(const QRectF& box, qreal radius) {
    m_painter.drawRoundedRect(box, radius, radius);
}

void Picture::save(const QString& path) {
    m_painter.end();
    if (!m_image.save(path, "PNG")) {
        throw std::runtime_error("Cannot write the picture " + path.toStdString());
    }
}
