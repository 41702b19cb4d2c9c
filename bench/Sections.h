#pragma once

#include "Measurements.h"

#include <QVector>

/// A line of the report.
struct Line {
    const char* what;
    Quantity value;
    /// The line tells `value` over this one; without a name, `value` itself.
    Quantity over = {};
    /// No limit: the line is told only.
    double goal = 0;
    double limit = 0;
};

/// `text` says what the lines measure.
struct Section {
    const char* text;
    QVector<Line> lines;
};

QVector<Section> reportSections();
