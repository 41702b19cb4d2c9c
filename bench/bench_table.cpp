#include "OffscreenScreen.h"
#include "TableBench.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

// Without an argument: measures with 64 and 1,024 cameras, each in several processes of its own, and prints one table
// of ratios. Exit status 1 when one of them passes its limit. With a number: one measurement with so many cameras.

namespace {

constexpr int Processes = 3;
constexpr int Few = 64;
constexpr int Many = 1024;

using Times = QMap<QString, double>;

struct Ratio {
    const char* what;
    double value;
    double goal;
    double limit;
};

int measureHere(int cameras, int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    enlargeOffscreenScreen(QSize(1920, 1200));
    const QByteArray times = QJsonDocument(TableBench(cameras).run()).toJson(QJsonDocument::Compact);
    std::printf("%s\n", times.constData());
    return 0;
}

Times measureInProcess(const QString& program, int cameras) {
    QProcess process;
    process.start(program, {QString::number(cameras)});
    process.waitForFinished(-1);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        throw std::runtime_error(process.readAllStandardError().toStdString());
    }
    const QVariantMap answer = QJsonDocument::fromJson(process.readAllStandardOutput()).object().toVariantMap();
    Times times;
    for (auto time = answer.begin(); time != answer.end(); ++time) {
        times.insert(time.key(), time.value().toDouble());
    }
    return times;
}

/// Of each time the median over the processes.
Times measure(const QString& program, int cameras) {
    QMap<QString, QVector<double>> all;
    for (int process = 0; process < Processes; ++process) {
        const Times times = measureInProcess(program, cameras);
        for (auto time = times.begin(); time != times.end(); ++time) {
            all[time.key()].append(time.value());
        }
    }
    Times medians;
    for (auto times = all.begin(); times != all.end(); ++times) {
        std::sort(times->begin(), times->end());
        medians.insert(times.key(), times->at(times->size() / 2));
    }
    return medians;
}

QVector<Ratio> ratios(const Times& few, const Times& many) {
    const double frame = many[QStringLiteral("frame")];
    const double call = many[QStringLiteral("call")];
    const double callAndParse = call + many[QStringLiteral("parse")];
    const double same = many[QStringLiteral("fullSameRows")];
    const double other = many[QStringLiteral("fullOtherRows")];
    return {
        {"full refresh, same rows, less call and parse, over markup", same / frame, 0.25, 0.5},
        {"full refresh, other rows, less call and parse, over markup", other / frame, 0.5, 1.2},
        {"the first of these, 1,024 over 64 cameras", same / few[QStringLiteral("fullSameRows")], 1.2, 1.8},
        {"the second of these, 1,024 over 64 cameras", other / few[QStringLiteral("fullOtherRows")], 1.2, 1.8},
        {"tick, nothing changed, over call and parse", many[QStringLiteral("tickNothingChanged")] / callAndParse, 1.1,
         1.5},
        {"tick, a tenth changed, over call and parse", many[QStringLiteral("tickSomeChanged")] / callAndParse, 1.3, 2},
        {"tick, the same text, over call", many[QStringLiteral("tickUnchangedText")] / call, 1.2, 1.6}};
}

int measureAndCompare(const QString& program) {
    const Times few = measure(program, Few);
    const Times many = measure(program, Many);
    std::printf("Milliseconds with 1,024 cameras: call %.1f, parse %.1f, markup of the visible rows %.1f\n\n",
                many[QStringLiteral("call")], many[QStringLiteral("parse")], many[QStringLiteral("frame")]);
    std::printf("%-62s %8s %6s %6s\n", "", "measured", "goal", "limit");
    bool held = true;
    for (const Ratio& ratio : ratios(few, many)) {
        const char* verdict = ratio.value > ratio.limit ? "  passed its limit" : "";
        std::printf("%-62s %8.2f %6.2f %6.2f%s\n", ratio.what, ratio.value, ratio.goal, ratio.limit, verdict);
        held = held && ratio.value <= ratio.limit;
    }
    return held ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return argc > 1 ? measureHere(QByteArray(argv[1]).toInt(), argc, argv)
                        : measureAndCompare(QString::fromLocal8Bit(argv[0]));
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 2;
    }
}
