#pragma once

#include <QSize>

/// Gives the screen of the offscreen platform a size, in pixels; its own is smaller than the table. Does
/// nothing on any other platform. Needs a `QGuiApplication`.
void enlargeOffscreenScreen(const QSize& size);
