#include "ItemOverlay.h"

#include "OneLine.h"

#include <QFontMetrics>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>

namespace {

/// Of the image's height, as those of the texts in it.
constexpr int TextShare = 24;
constexpr int SmallestText = 11;
constexpr int LargestText = 16;
constexpr int EndsShare = 9;
constexpr int LeastEnds = 14;
constexpr int Margin = 3;
/// A small image leaves the lines the room beside it.
constexpr int LeastWidth = 160;
constexpr QColor Ground(0, 0, 0, 150);

}  // namespace

bool ItemOverlay::setInfo(const CustomInfo& info) {
    if (m_info == info) {
        return false;
    }
    m_info = info;
    const QStringList texts = info.shownTexts();
    if (texts == m_texts) {
        return false;
    }
    m_texts = texts;
    m_room = {};
    return true;
}

void ItemOverlay::paint(QPainter& painter, const QRect& image, int width) {
    if (m_texts.isEmpty()) {
        return;
    }
    // The name stands above, the frame's number below.
    const int ends = std::max(LeastEnds, image.height() / EndsShare);
    const int left = std::max(0, std::min(image.left(), width - LeastWidth)) + Margin;
    const QRect room(left, image.top() + ends, width - left - Margin, image.height() - 2 * ends);
    if (room.isEmpty()) {
        return;
    }
    const double pixelRatio = painter.device()->devicePixelRatioF();
    if (m_room != room.size() || m_picture.devicePixelRatioF() != pixelRatio) {
        m_room = room.size();
        const int fontSize = std::clamp(image.height() / TextShare, SmallestText, LargestText);
        m_picture = drawn(m_room, fontSize, pixelRatio);
    }
    painter.drawPixmap(room.topLeft(), m_picture);
}

QPixmap ItemOverlay::drawn(const QSize& room, int fontSize, double pixelRatio) const {
    QPixmap picture(room * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QFont font;
    font.setPixelSize(fontSize);
    painter.setFont(font);
    painter.setPen(Qt::white);
    const QFontMetrics metrics(font);
    const int lines = std::min(m_texts.size(), room.height() / metrics.height());
    for (int i = 0; i < lines; ++i) {
        const int leftOut = i + 1 < lines ? 0 : m_texts.size() - lines;
        const QString end = leftOut > 0 ? QStringLiteral(" \u2026 +%1").arg(leftOut) : QString();
        const int width = room.width() - 2 * Margin - metrics.horizontalAdvance(end);
        const QString text = metrics.elidedText(inOneLine(m_texts.at(i)), Qt::ElideRight, width) % end;
        const QRect place(0, i * metrics.height(), metrics.horizontalAdvance(text) + 2 * Margin, metrics.height());
        painter.fillRect(place, Ground);
        painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, text);
    }
    return picture;
}
