#pragma once

#include <QDir>

/// Draws the sheets of tool icons, `is_toolmenu_sub1.png` and so on, into the folder. A sheet has a cell of 40 x 32
/// pixels for each tool, and a row of them for each state: off, on, off and disabled, on and disabled. Throws
/// `std::runtime_error`, naming the file, when one can't be written.
void drawToolIcons(const QDir& folder);
