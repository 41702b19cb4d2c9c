#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>
#include <Qt>

/// Where a window goes when it opens.
struct TablePlacement {
    QRect geometry;
    Qt::WindowStates state = Qt::WindowNoState;
    /// The geometry has no place of its own: centre the window on the main window's screen.
    bool centered = false;
};

/// What was stored when the window closed.
struct StoredPlacement {
    QPoint position;
    QSize size;
    Qt::WindowStates state = Qt::WindowNoState;
    /// Negative when it is not known.
    int screen = -1;
};

/// `screens` are the geometries of the screens by their number, `mainScreen` that of the main window's screen.
/// A window that no screen holds as a whole gets half of `mainScreen`; a minimised one opens normal.
TablePlacement placeTable(const StoredPlacement& stored, const QSize& minimumSize, const QVector<QRect>& screens,
                          const QRect& mainScreen);
