#pragma once

#include <QMap>
#include <QString>

/// What a measurement answers, by name: milliseconds, or MiB.
using Numbers = QMap<QString, double>;

/// Runs this program again, once for each measurement, so that none disturbs another.
class Measurements {
public:
    explicit Measurements(const QString& program) : m_program(program) {}

    /// Of each number the median over so many processes. Throws `std::runtime_error` with what the process wrote.
    Numbers measure(const QString& name, int cameras, int processes) const;

private:
    Numbers measureOnce(const QString& name, int cameras) const;

    const QString m_program;
};
