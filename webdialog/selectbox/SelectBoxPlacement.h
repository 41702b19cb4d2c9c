#pragma once

#include <QRect>

#include <optional>

/// Where the box stands to its anchor.
enum class SelectBoxDirection {
    Above = 0,
    /// With room for the longest row, growing to the left, and to the right.
    AboveWideToLeft = 1,
    AboveWideToRight = 2,
    Below = 3,
    BelowWideToLeft = 4
};

/// A box is never higher, in pixels.
constexpr int SelectBoxMaxHeight = 300;

/// What the place of the box depends on; all in pixels.
struct SelectBoxLayout {
    SelectBoxDirection direction = SelectBoxDirection::Above;
    /// The control that the box belongs to, in its page; a row is as high as the control.
    QRect anchor;
    /// The window with that page, on the screen.
    QRect parentRect;
    int rows = 0;
    /// Width of the widest row; of no meaning where the box is as wide as its anchor.
    int textWidth = 0;
};

/// Whether the rows' texts count for the width of the box.
bool growsWithText(SelectBoxDirection direction);

/// Place of the box on the screen.
QRect placeSelectBox(const SelectBoxLayout& layout);

/// Where the list is scrolled to, in pixels, to show row `selected`, counted from 0; nothing when no row is selected
/// (negative) or all fit in.
std::optional<int> selectBoxScroll(int rows, int rowHeight, int selected);
