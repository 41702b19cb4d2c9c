#pragma once

#include <QMap>
#include <QString>
#include <QVector>

#include <utility>

/// One of the numbers of a measurement with so many cameras: milliseconds, or MiB.
struct Quantity {
    const char* measurement = nullptr;
    int cameras = 0;
    const char* name = nullptr;
};

/// What several processes have measured.
struct Spread {
    double median = 0;
    double smallest = 0;
    double largest = 0;
};

/// Runs this program again, once for each measurement, so that none disturbs another, and each in three processes. What
/// was measured is kept. All of it throws `std::runtime_error` with what the process wrote.
class Measurements {
public:
    explicit Measurements(const QString& program) : m_program(program) {}

    Spread of(const Quantity& quantity) { return spreadOf(values(quantity)); }
    /// Of the ratios: each is of one process, or of two of the same place where the measurements differ.
    Spread ratio(const Quantity& value, const Quantity& over);

private:
    using Numbers = QMap<QString, double>;

    static Spread spreadOf(const QVector<double>& values);
    /// One a process.
    QVector<double> values(const Quantity& quantity);
    Numbers measure(const QString& name, int cameras) const;

    const QString m_program;
    QMap<std::pair<QString, int>, QVector<Numbers>> m_taken;
};
