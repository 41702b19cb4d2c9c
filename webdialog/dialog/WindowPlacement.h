#pragma once

class QPoint;
class QRect;
class QSize;
class QWidget;
class ZebHost;

/// Top left corner of a frame of that size in the middle of `area`.
QPoint centeredTopLeft(const QRect& area, const QSize& frame);

/// The place of a window that has no main window to stand over: the middle of the screen that the preference
/// `main/scrno` names, or of its own screen when there is no such screen. Nothing when there is a main window.
void centerWithoutMainWindow(const ZebHost& host, QWidget& window);
