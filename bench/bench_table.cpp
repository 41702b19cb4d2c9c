#include "CommandBench.h"
#include "EffectBench.h"
#include "Figures.h"
#include "HostPages.h"
#include "Measurements.h"
#include "MemoryBench.h"
#include "OffscreenScreen.h"
#include "Report.h"
#include "SaveBench.h"
#include "StartBench.h"
#include "TableBench.h"
#include "TextBench.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <functional>
#include <stdexcept>

// Without arguments: takes all measurements, each in processes of its own, and prints the report. Exit status 1 when
// something passes its limit. With `figures`: prints the table of docs/performance.md. With the name of a measurement
// and a number of cameras: that one, here.

namespace {

const QMap<QString, std::function<QJsonObject(int)>>& measurementsByName() {
    static const QMap<QString, std::function<QJsonObject(int)>> measurements{
        {QStringLiteral("table"), [](int cameras) { return TableBench(cameras).run(); }},
        {QStringLiteral("text"), [](int cameras) { return TextBench(cameras).run(); }},
        {QStringLiteral("start"), [](int cameras) { return StartBench(cameras).run(); }},
        {QStringLiteral("memory"), [](int cameras) { return MemoryBench(cameras).run(); }},
        {QStringLiteral("growth"), [](int cameras) { return MemoryBench(cameras).growth(); }},
        {QStringLiteral("commands"), [](int cameras) { return CommandBench(cameras).run(); }},
        {QStringLiteral("settings"), [](int cameras) { return CommandBench(cameras).settings(); }},
        {QStringLiteral("effects"), [](int) { return EffectBench::run(); }},
        {QStringLiteral("save"), [](int) { return SaveBench::run(); }},
        {QStringLiteral("saveMemory"), SaveBench::memory}};
    return measurements;
}

int measureHere(int argc, char** argv) {
    const QString name = QString::fromLocal8Bit(argv[1]);
    const auto& measurements = measurementsByName();
    if (!measurements.contains(name)) {
        throw std::runtime_error("The measurements are " +
                                 QStringList(measurements.keys()).join(QStringLiteral(", ")).toStdString() + ".");
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    setUpOffscreen(QSize(1920, 1200));
    initHostPages();
    const QJsonObject numbers = measurements[name](QByteArray(argv[2]).toInt());
    std::printf("%s\n", QJsonDocument(numbers).toJson(QJsonDocument::Compact).constData());
    return 0;
}

int measureAll(int argc, char** argv) {
    Measurements measurements(QString::fromLocal8Bit(argv[0]));
    if (argc == 1) {
        return printReport(measurements) ? 0 : 1;
    }
    if (qstrcmp(argv[1], "figures") != 0) {
        throw std::runtime_error("A measurement needs a number of cameras; the table is made by \"figures\".");
    }
    printFigures(measurements);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return argc > 2 ? measureHere(argc, argv) : measureAll(argc, argv);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 2;
    }
}
