#pragma once

#include <QVector>

#include <algorithm>

/// The middle one of `times`, which must not be empty.
inline double median(QVector<double> times) {
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
}
