#pragma once

#include <QSize>

/// Makes the offscreen platform like a desk with a window manager: its screen gets a size, in pixels, for its own is
/// smaller than the table, and a window that takes no focus is not made active. Does nothing on any other platform.
/// Once, with a `QGuiApplication`.
void setUpOffscreen(const QSize& size);
