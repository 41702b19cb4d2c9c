#pragma once

#include <QFont>
#include <QRect>

class QPainter;
class QString;

/// The texts that stand in a picture, as large as it wants them. Any thread.
class FrameTexts {
public:
    /// Of a picture that fills `area`.
    explicit FrameTexts(const QRect& area) : FrameTexts(area, area.height()) {}
    /// Of several such, `height` pixels high each.
    FrameTexts(const QRect& area, int height);

    /// Where they stand.
    const QRect& place() const { return m_place; }
    int margin() const { return m_margin; }
    int lineHeight() const;
    int widthOf(const QString& text) const;
    /// One line, shortened in its middle to what there is room for, with a shadow.
    void draw(QPainter& painter, Qt::Alignment alignment, const QString& text) const;
    /// Smaller lines on dark plates, the last one above the lowest line of `place`.
    void drawPlates(QPainter& painter, const QStringList& lines) const;
    /// As small, in as many lines as it takes.
    void drawWrapped(QPainter& painter, const QString& text) const;

private:
    QFont smallFont() const;

    QFont m_font;
    int m_margin;
    QRect m_place;
};
