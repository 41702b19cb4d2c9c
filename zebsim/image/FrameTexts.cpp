#include "FrameTexts.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStringList>

#include <algorithm>

namespace {

constexpr int TextShare = 14;
constexpr int SmallestText = 9;
constexpr QColor Shadow(0, 0, 0, 180);

}  // namespace

FrameTexts::FrameTexts(const QRect& area, int height)
    : m_margin(std::max(3, height / 40)), m_place(area.adjusted(m_margin, m_margin, -m_margin, -m_margin)) {
    m_font.setPixelSize(std::max(SmallestText, height / TextShare));
}

int FrameTexts::lineHeight() const {
    return QFontMetrics(m_font).height();
}

int FrameTexts::widthOf(const QString& text) const {
    return QFontMetrics(m_font).horizontalAdvance(text);
}

void FrameTexts::draw(QPainter& painter, Qt::Alignment alignment, const QString& text) const {
    painter.setFont(m_font);
    // Names often differ at their end only.
    const QString fitting = QFontMetrics(m_font).elidedText(text, Qt::ElideMiddle, m_place.width());
    painter.setPen(Shadow);
    painter.drawText(m_place.translated(1, 1), int(alignment) | Qt::TextSingleLine, fitting);
    painter.setPen(Qt::white);
    painter.drawText(m_place, int(alignment) | Qt::TextSingleLine, fitting);
}

QFont FrameTexts::smallFont() const {
    QFont font = m_font;
    font.setPixelSize(std::max(SmallestText, m_font.pixelSize() * 2 / 3));
    return font;
}

void FrameTexts::drawWrapped(QPainter& painter, const QString& text) const {
    painter.setFont(smallFont());
    painter.setPen(Qt::white);
    painter.drawText(m_place, int(Qt::AlignCenter) | Qt::TextWrapAnywhere, text);
}

void FrameTexts::drawPlates(QPainter& painter, const QStringList& lines) const {
    const QFont font = smallFont();
    painter.setFont(font);
    painter.setPen(Qt::white);
    const QFontMetrics metrics(font);
    int bottom = m_place.bottom() - lineHeight() - m_margin;
    for (auto line = lines.crbegin(); line != lines.crend(); ++line) {
        const QString fitting = metrics.elidedText(*line, Qt::ElideMiddle, m_place.width() - m_margin);
        const QRect plate(m_place.left(), bottom - metrics.height(), metrics.horizontalAdvance(fitting) + m_margin,
                          metrics.height());
        painter.fillRect(plate, Shadow);
        painter.drawText(plate, int(Qt::AlignCenter) | Qt::TextSingleLine, fitting);
        bottom -= metrics.height();
    }
}
