#pragma once

#include <QString>

/// Font by which a character of a row counts for the row's width.
struct SelectBoxFont {
    QString family;
    int pointSize;
    int weight;
};
SelectBoxFont selectBoxFont(uint character);

/// Width of a row's text in pixels: the sum of its characters, each in its font.
int selectBoxTextWidth(const QString& text);
