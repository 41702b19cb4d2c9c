#include "Measurements.h"

#include "Median.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <stdexcept>

Numbers Measurements::measure(const QString& name, int cameras, int processes) const {
    QMap<QString, QVector<double>> all;
    for (int process = 0; process < processes; ++process) {
        const Numbers numbers = measureOnce(name, cameras);
        for (auto number = numbers.begin(); number != numbers.end(); ++number) {
            all[number.key()].append(number.value());
        }
    }
    Numbers medians;
    for (auto numbers = all.begin(); numbers != all.end(); ++numbers) {
        medians.insert(numbers.key(), median(numbers.value()));
    }
    return medians;
}

Numbers Measurements::measureOnce(const QString& name, int cameras) const {
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
