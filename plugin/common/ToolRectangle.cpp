#include "ToolRectangle.h"

#include <QStringBuilder>

#include <algorithm>
#include <cstdlib>

namespace {

/// One axis of a rectangle, both ends included.
struct Span {
    int first;
    int last;
    int length() const { return last - first + 1; }
};

Span horizontal(const QRect& rect) {
    return {rect.left(), rect.right()};
}

Span vertical(const QRect& rect) {
    return {rect.top(), rect.bottom()};
}

QRect rectOf(const Span& x, const Span& y) {
    return QRect(QPoint(x.first, y.first), QPoint(x.last, y.last));
}

/// The end of `span` that `at` is on: -1 first, 1 last, 0 none. On a narrow span the nearer one.
int endAt(const Span& span, int at, int tolerance) {
    const int toFirst = std::abs(at - span.first);
    const int toLast = std::abs(at - span.last);
    if (std::min(toFirst, toLast) > tolerance) {
        return 0;
    }
    return toFirst < toLast ? -1 : 1;
}

/// `span` with the end `side` at `to` and, when mirrored, the other as far from the image's other border.
Span withEnd(const Span& span, int side, int to, int mirrorLength) {
    Span result = span;
    (side < 0 ? result.first : result.last) = to;
    if (mirrorLength > 0) {
        (side < 0 ? result.last : result.first) = mirrorLength - 1 - to;
    }
    return result;
}

Span unlessTooShort(const Span& span, const Span& before, int minLength) {
    return span.length() < std::max(1, minLength) ? before : span;
}

Span limitedSpan(const Span& span, int imageLength, int grid, ToolRectangle::Change change) {
    const auto onGrid = [grid](int value) { return value - value % grid; };
    if (change == ToolRectangle::Change::Moved) {
        const int length = std::min(span.length(), imageLength);
        const int first = onGrid(std::clamp(span.first, 0, imageLength - length));
        return {first, first + length - 1};
    }
    const int first = onGrid(std::max(0, span.first));
    const int length = onGrid(std::max(0, std::min(imageLength - 1, span.last) - first + 1));
    return {first, first + length - 1};
}

std::optional<QPoint> arrowDirection(int key) {
    switch (key) {
        case Qt::Key_Left:
            return QPoint(-1, 0);
        case Qt::Key_Right:
            return QPoint(1, 0);
        case Qt::Key_Up:
            return QPoint(0, -1);
        case Qt::Key_Down:
            return QPoint(0, 1);
        default:
            return std::nullopt;
    }
}

ToolRectangle::Handle handleOfSides(const QPoint& sides) {
    static constexpr ToolRectangle::Handle handles[3][3] = {
        {ToolRectangle::TopLeftCorner, ToolRectangle::TopEdge, ToolRectangle::TopRightCorner},
        {ToolRectangle::LeftEdge, ToolRectangle::Inside, ToolRectangle::RightEdge},
        {ToolRectangle::BottomLeftCorner, ToolRectangle::BottomEdge, ToolRectangle::BottomRightCorner}};
    return handles[sides.y() + 1][sides.x() + 1];
}

bool isEdge(const QPoint& sides) {
    return sides.manhattanLength() == 1;
}

double aspectOf(const QSize& size) {
    return size.height() > 0 ? static_cast<double>(size.width()) / size.height() : 0.0;
}

}  // namespace

ToolRectangle::ToolRectangle(const QSize& imageSize, const View& view, const Rules& rules)
    : m_imageSize(imageSize), m_view(view), m_rules(rules) {}

QPoint ToolRectangle::seenFromImage(QPoint direction) const {
    if (m_view.horizontalFlip) {
        direction.rx() *= -1;
    }
    if (m_view.verticalFlip) {
        direction.ry() *= -1;
    }
    for (int turned = 0; turned < m_view.rotation; turned += 90) {
        direction = QPoint(-direction.y(), direction.x());
    }
    return direction;
}

QPoint ToolRectangle::imageFromSeen(QPoint direction) const {
    for (int turned = 0; turned < m_view.rotation; turned += 90) {
        direction = QPoint(direction.y(), -direction.x());
    }
    if (m_view.horizontalFlip) {
        direction.rx() *= -1;
    }
    if (m_view.verticalFlip) {
        direction.ry() *= -1;
    }
    return direction;
}

QPoint ToolRectangle::sidesOf(int handle) const {
    for (int y = -1; y <= 1; ++y) {
        for (int x = -1; x <= 1; ++x) {
            if (handleOfSides({x, y}) == handle) {
                return isEdge({x, y}) ? imageFromSeen({x, y}) : QPoint(x, y);
            }
        }
    }
    return {};
}

ToolRectangle::Handle ToolRectangle::handleAt(const QRect& rect, const QPoint& point) const {
    const int tolerance = std::max(1, static_cast<int>(5.0 / m_view.zoom));
    if (!rect.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(point)) {
        return Outside;
    }
    const QPoint sides(endAt(horizontal(rect), point.x(), tolerance), endAt(vertical(rect), point.y(), tolerance));
    return handleOfSides(isEdge(sides) ? seenFromImage(sides) : sides);
}

std::optional<Qt::CursorShape> ToolRectangle::cursorFor(int handle) const {
    const bool turned = m_view.rotation % 180 != 0;
    const bool diagonalsSwapped = (turned != m_view.horizontalFlip) != m_view.verticalFlip;
    switch (handle) {
        case TopEdge:
        case BottomEdge:
            return Qt::SizeVerCursor;
        case LeftEdge:
        case RightEdge:
            return Qt::SizeHorCursor;
        case TopLeftCorner:
        case BottomRightCorner:
            return diagonalsSwapped ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
        case TopRightCorner:
        case BottomLeftCorner:
            return diagonalsSwapped ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
        case Inside:
            return Qt::SizeAllCursor;
        default:
            return std::nullopt;
    }
}

QRect ToolRectangle::dragged(const QRect& rect, int handle, const QPoint& from, const QPoint& to) const {
    if (handle == Inside) {
        return limited(rect.translated(to - from), Change::Moved);
    }
    const QPoint sides = sidesOf(handle);
    Span x = horizontal(rect);
    Span y = vertical(rect);
    if (sides.x() != 0) {
        const int mirrorLength = m_rules.mirrorX ? m_imageSize.width() : 0;
        x = unlessTooShort(withEnd(x, sides.x(), to.x(), mirrorLength), x, m_rules.minSize.width());
    }
    if (sides.y() != 0) {
        const int mirrorLength = m_rules.mirrorY ? m_imageSize.height() : 0;
        y = unlessTooShort(withEnd(y, sides.y(), to.y(), mirrorLength), y, m_rules.minSize.height());
    }
    return limited(rectOf(x, y), Change::Resized);
}

std::optional<QRect> ToolRectangle::stepped(const QRect& rect, int key, Qt::KeyboardModifiers modifiers) const {
    const std::optional<QPoint> arrow = arrowDirection(key);
    if (!arrow) {
        return std::nullopt;
    }
    const QPoint direction = imageFromSeen(*arrow);
    if (modifiers & Qt::ShiftModifier) {
        return keyResized(rect, direction, modifiers & Qt::ControlModifier);
    }
    const QPoint step(direction.x() * m_rules.xStep, direction.y() * m_rules.yStep);
    return limited(rect.translated(step), Change::Moved);
}

QRect ToolRectangle::keyResized(const QRect& rect, const QPoint& direction, bool outward) const {
    const auto resized = [outward](const Span& span, int way, int step, bool mirrored, int minLength) {
        if (way == 0) {
            return span;
        }
        // Half of an odd step is rounded up, or a step of 1 would do nothing.
        const int distance = way * (mirrored ? (step + 1) / 2 : step);
        const bool movesFirst = (way < 0) == outward;
        Span result = span;
        (movesFirst ? result.first : result.last) += distance;
        if (mirrored) {
            (movesFirst ? result.last : result.first) -= distance;
        }
        return unlessTooShort(result, span, minLength);
    };
    const QRect result =
        rectOf(resized(horizontal(rect), direction.x(), m_rules.widthStep, m_rules.mirrorX, m_rules.minSize.width()),
               resized(vertical(rect), direction.y(), m_rules.heightStep, m_rules.mirrorY, m_rules.minSize.height()));
    return limited(result, Change::Resized);
}

QRect ToolRectangle::limited(const QRect& rect, Change change) const {
    return rectOf(limitedSpan(horizontal(rect), m_imageSize.width(), m_rules.pixelStepX, change),
                  limitedSpan(vertical(rect), m_imageSize.height(), m_rules.pixelStepY, change));
}

QVariantMap ToolRectangle::parameters(const QRect& rect, bool shown) const {
    QVariantMap result;
    const auto put = [&result](const QString& name, int value, int least, int most, int step) {
        result.insert(name, value);
        result.insert(name % QStringLiteral("Min"), least);
        result.insert(name % QStringLiteral("Max"), most);
        result.insert(name % QStringLiteral("Step"), step);
    };
    const QSize least = m_rules.minSize.expandedTo({m_rules.pixelStepX, m_rules.pixelStepY});
    put(QStringLiteral("Width"), rect.width(), least.width(), m_imageSize.width(), m_rules.widthStep);
    put(QStringLiteral("Height"), rect.height(), least.height(), m_imageSize.height(), m_rules.heightStep);
    put(QStringLiteral("PosX"), rect.left(), 0, m_imageSize.width() - rect.width(), m_rules.xStep);
    put(QStringLiteral("PosY"), rect.top(), 0, m_imageSize.height() - rect.height(), m_rules.yStep);
    result.insert(QStringLiteral("AspectRatio"), aspectOf(rect.size()));
    result.insert(QStringLiteral("FixAspect"), false);
    if (!shown) {
        return result;
    }

    const QSize zoomed = rect.size() * m_view.zoom;
    result.insert(QStringLiteral("OriginalAspect"), aspectOf(m_imageSize));
    result.insert(QStringLiteral("CurrentWidth"), m_imageSize.width());
    result.insert(QStringLiteral("CurrentHeight"), m_imageSize.height());
    result.insert(QStringLiteral("ZoomRate"), m_view.zoom);
    result.insert(QStringLiteral("ZoomResolution"), QStringLiteral("%1 x %2").arg(zoomed.width()).arg(zoomed.height()));
    return result;
}

QRect ToolRectangle::toSensor(const QRect& rect, double factor) {
    const auto divided = [factor](int value) { return static_cast<int>(value / factor); };
    QRect result(QPoint(divided(rect.left()), divided(rect.top())),
                 QPoint(divided(rect.right()), divided(rect.bottom())));
    result.setSize(result.size().expandedTo({1, 1}));
    return result;
}
