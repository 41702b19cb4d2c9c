#include "Measurements.h"

#include "Median.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <algorithm>
#include <functional>
#include <stdexcept>

namespace {

constexpr int Processes = 3;

}

Spread Measurements::ratio(const Quantity& value, const Quantity& over) {
    QVector<double> ratios = values(value);
    const QVector<double> others = values(over);
    std::transform(ratios.begin(), ratios.end(), others.begin(), ratios.begin(), std::divides<>());
    return spreadOf(ratios);
}

Spread Measurements::spreadOf(const QVector<double>& values) {
    const auto [smallest, largest] = std::minmax_element(values.begin(), values.end());
    return {median(values), *smallest, *largest};
}

QVector<double> Measurements::values(const Quantity& quantity) {
    const QString measurement = QLatin1String(quantity.measurement);
    QVector<Numbers>& processes = m_taken[{measurement, quantity.cameras}];
    while (processes.size() < Processes) {
        processes.append(measure(measurement, quantity.cameras));
    }
    QVector<double> values;
    for (const Numbers& numbers : processes) {
        const auto number = numbers.constFind(QLatin1String(quantity.name));
        if (number == numbers.constEnd()) {
            throw std::runtime_error(std::string(quantity.measurement) + " tells no " + quantity.name + ".");
        }
        values.append(number.value());
    }
    return values;
}

Measurements::Numbers Measurements::measure(const QString& name, int cameras) const {
    QProcess process;
    process.start(m_program, {name, QString::number(cameras)});
    process.waitForFinished(-1);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        throw std::runtime_error("The measurement " + name.toStdString() + " failed.\n" +
                                 process.readAllStandardError().toStdString());
    }
    const QVariantMap answer = QJsonDocument::fromJson(process.readAllStandardOutput()).object().toVariantMap();
    Numbers numbers;
    for (auto number = answer.begin(); number != answer.end(); ++number) {
        numbers.insert(number.key(), number.value().toDouble());
    }
    return numbers;
}
