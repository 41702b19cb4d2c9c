#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVariantMap>

#include <optional>

/// What an image tool may do to its rectangle, decided on plain values.
///
/// Points and rectangles are in image pixels, whatever way the image stands in its window. A handle names an
/// edge by the side on which the user sees it, and a corner by its place in the image.
class ToolRectangle {
public:
    enum Handle {
        TopEdge = 0,
        BottomEdge = 1,
        LeftEdge = 2,
        RightEdge = 3,
        TopLeftCorner = 4,
        TopRightCorner = 5,
        BottomLeftCorner = 6,
        BottomRightCorner = 7,
        Inside = 8,
        Outside = 9
    };

    /// What a rectangle keeps while the limits are put on it: the edges that stayed, or its size.
    enum class Change { Resized, Moved };

    /// How the image stands in its window: flipped first, then turned clockwise.
    struct View {
        /// Degrees: 0, 90, 180 or 270.
        int rotation = 0;
        bool horizontalFlip = false;
        bool verticalFlip = false;
        /// Window pixels per image pixel, above 0.
        double zoom = 1.0;
    };

    /// Steps of the arrow keys, least size and grid. A mirrored axis moves both of its edges about the image's centre.
    struct Rules {
        int widthStep = 1;
        int heightStep = 1;
        int xStep = 1;
        int yStep = 1;
        QSize minSize{-1, -1};
        int pixelStepX = 1;
        int pixelStepY = 1;
        bool mirrorX = true;
        bool mirrorY = true;
    };

    ToolRectangle(const QSize& imageSize, const View& view, const Rules& rules);

    Handle handleAt(const QRect& rect, const QPoint& point) const;
    /// None where the handle leaves the cursor alone.
    std::optional<Qt::CursorShape> cursorFor(int handle) const;

    /// `rect` after the mouse has dragged `handle` from `from` to `to`, inside the limits. An edge that would come
    /// closer to its opposite than the least size stays where it was.
    QRect dragged(const QRect& rect, int handle, const QPoint& from, const QPoint& to) const;
    /// `rect` after an arrow key, inside the limits; none for any other key. The arrows point as the user sees them.
    std::optional<QRect> stepped(const QRect& rect, int key, Qt::KeyboardModifiers modifiers) const;
    /// `rect` inside the image and on the grid; empty where no grid cell of it is left.
    QRect limited(const QRect& rect, Change change) const;

    /// Values of the panel page; those of the view only when `shown`.
    QVariantMap parameters(const QRect& rect, bool shown) const;

    /// `rect` with its edges divided by `factor`, above 0; at least 1 by 1.
    static QRect toSensor(const QRect& rect, double factor);

private:
    QPoint seenFromImage(QPoint direction) const;
    QPoint imageFromSeen(QPoint direction) const;
    /// The edges in the image that a handle takes along: -1 left or top, 1 right or bottom, 0 none.
    QPoint sidesOf(int handle) const;
    QRect keyResized(const QRect& rect, const QPoint& direction, bool outward) const;

    QSize m_imageSize;
    View m_view;
    Rules m_rules;
};
