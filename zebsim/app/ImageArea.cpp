#include "ImageArea.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// Width of a tile by its height, title bar included, that suits images which are square or a little wider.
constexpr double WindowShape = 1.2;

}  // namespace

ImageArea::ImageArea(QWidget* parent) : QMdiArea(parent) {
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setBackground(QColor(58, 62, 68));
}

void ImageArea::setEmptyText(const QString& text) {
    if (m_emptyText == text) {
        return;
    }
    m_emptyText = text;
    viewport()->update();
}

void ImageArea::tile(const QList<QMdiSubWindow*>& windows) {
    m_windows.clear();
    for (QMdiSubWindow* window : windows) {
        m_windows.append(window);
    }
    tile();
}

void ImageArea::tile() {
    const auto fillsArea = [](const QPointer<QMdiSubWindow>& window) { return window && window->isMaximized(); };
    if (m_windows.isEmpty() || viewport()->size().isEmpty() ||
        std::any_of(m_windows.begin(), m_windows.end(), fillsArea)) {
        return;
    }
    const QSize room = viewport()->size();
    const double inOneRow = m_windows.size() * room.width() / (WindowShape * room.height());
    const int columns = qBound(1, qRound(std::sqrt(inOneRow)), m_windows.size());
    const int rows = (m_windows.size() + columns - 1) / columns;
    for (int i = 0; i < m_windows.size(); ++i) {
        const int row = i / columns;
        const int column = i % columns;
        const QPoint from(room.width() * column / columns, room.height() * row / rows);
        const QPoint to(room.width() * (column + 1) / columns, room.height() * (row + 1) / rows);
        if (m_windows.at(i)) {
            m_windows.at(i)->setGeometry(QRect(from, to - QPoint(1, 1)));
        }
    }
}

void ImageArea::resizeEvent(QResizeEvent* event) {
    QMdiArea::resizeEvent(event);
    tile();
}

void ImageArea::paintEvent(QPaintEvent* event) {
    QMdiArea::paintEvent(event);
    if (!subWindowList().isEmpty()) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(Qt::lightGray);
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}
