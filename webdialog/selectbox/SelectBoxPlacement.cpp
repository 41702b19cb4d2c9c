#include "SelectBoxPlacement.h"

namespace {

bool growsToTheLeft(SelectBoxDirection direction) {
    return direction == SelectBoxDirection::AboveWideToLeft || direction == SelectBoxDirection::BelowWideToLeft;
}

bool isBelow(SelectBoxDirection direction) {
    return direction == SelectBoxDirection::Below || direction == SelectBoxDirection::BelowWideToLeft;
}

}  // namespace

bool growsWithText(SelectBoxDirection direction) {
    return direction != SelectBoxDirection::Above && direction != SelectBoxDirection::Below;
}

QRect placeSelectBox(const SelectBoxLayout& layout) {
    const QRect& anchor = layout.anchor;
    const int height = qMin(SelectBoxMaxHeight, layout.rows * anchor.height());
    const int width = growsWithText(layout.direction) ? qMax(anchor.width(), layout.textWidth) : anchor.width();
    const int left = growsToTheLeft(layout.direction) ? anchor.right() + 1 - width : anchor.left();
    const int top = isBelow(layout.direction) ? anchor.bottom() : anchor.top() - height;
    return {layout.parentRect.topLeft() + QPoint(left, top), QSize(width, height)};
}

std::optional<int> selectBoxScroll(int rows, int rowHeight, int selected) {
    if (selected < 0 || rows * rowHeight <= SelectBoxMaxHeight) {
        return std::nullopt;
    }
    return selected * rowHeight;
}
