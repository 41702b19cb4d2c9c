#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>

/// A picture being drawn: transparent at first, antialiased, coordinates in pixels.
class Picture {
public:
    Picture(int width, int height);

    QPainter& painter() { return m_painter; }
    /// Stroke without a fill.
    void pen(const QColor& colour, qreal width);
    /// Fill without a stroke.
    void fill(const QColor& colour);
    void roundedBox(const QRectF& box, qreal radius);
    /// Ends the drawing. Throws `std::runtime_error`, naming the file, when it can't be written.
    void save(const QString& path);

private:
    QImage m_image;
    QPainter m_painter;
};
