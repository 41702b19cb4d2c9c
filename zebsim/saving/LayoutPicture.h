#pragma once

#include "CameraFrame.h"
#include "NameFamilies.h"

#include <QImage>

#include <optional>
#include <vector>

/// How the pictures of several cameras stand side by side in one.
struct LayoutRule {
    enum Method { Grid, Row, Column };

    Method method = Grid;
    /// Of a grid; 0: as many as make it square.
    int columns = 0;
    /// Each picture keeps the ratio of its sides.
    bool keepsAspect = true;
    /// Of the whole, in pixels; empty: as the tiles make it.
    QSize size = {};
    /// Names and times are drawn.
    bool hasTexts = true;
    /// Before its first frame and after its last a camera shows that, else nothing but its name.
    bool holdsEnds = true;

    /// Columns and rows of so many tiles, and pixels of one, and of all.
    QSize grid(int tiles) const;
    QSize tileSize(int tiles) const;
    QSize wholeSize(int tiles) const;

    /// As the preferences of `family`, as "layout/", choose.
    static LayoutRule chosen(const PrefReader& pref, const QString& family);
};

/// What stands in one tile.
struct LayoutTile {
    QString name;
    /// Nothing: the name alone.
    std::optional<CameraFrame> frame;
};

/// The tiles in their order, row by row; a place without a tile stays empty. Any thread.
QImage layoutPicture(const LayoutRule& rule, const std::vector<std::optional<LayoutTile>>& tiles);
