#include "CommandBench.h"
#include "EffectBench.h"
#include "HostPages.h"
#include "Measurements.h"
#include "MemoryBench.h"
#include "OffscreenScreen.h"
#include "SaveBench.h"
#include "StartBench.h"
#include "TableBench.h"
#include "TextBench.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

#include <cstdio>
#include <stdexcept>

// Without arguments: takes all measurements, each in processes of its own, and prints one table. Exit status 1 when
// something passes its limit. With the name of a measurement and a number of cameras: that one, here.

namespace {

constexpr int Processes = 3;
constexpr int Few = 64;
constexpr int Many = 1024;

/// A line of the table: a ratio unless it says otherwise.
struct Line {
    const char* what;
    double value;
    double goal;
    double limit;
};

QJsonObject measure(const QString& name, int cameras) {
    if (name == QLatin1String("table")) {
        return TableBench(cameras).run();
    }
    if (name == QLatin1String("text")) {
        return TextBench(cameras).run();
    }
    if (name == QLatin1String("start")) {
        return StartBench(cameras).run();
    }
    if (name == QLatin1String("memory")) {
        return MemoryBench(cameras).run();
    }
    if (name == QLatin1String("commands")) {
        return CommandBench(cameras).run();
    }
    if (name == QLatin1String("effects")) {
        return EffectBench::run();
    }
    if (name == QLatin1String("save")) {
        return SaveBench::run();
    }
    if (name == QLatin1String("saveMemory")) {
        return SaveBench::memory(cameras);
    }
    throw std::runtime_error(
        "The measurements are table, text, start, memory, commands, effects, save and saveMemory.");
}

int measureHere(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    setUpOffscreen(QSize(1920, 1200));
    initHostPages();
    const QJsonObject numbers = measure(QString::fromLocal8Bit(argv[1]), QByteArray(argv[2]).toInt());
    std::printf("%s\n", QJsonDocument(numbers).toJson(QJsonDocument::Compact).constData());
    return 0;
}

QVector<Line> compareTable(const Numbers& few, const Numbers& many) {
    const double frame = many[QStringLiteral("frame")];
    const double call = many[QStringLiteral("call")];
    const double callAndParse = call + many[QStringLiteral("parse")];
    const double same = many[QStringLiteral("fullSameRows")];
    const double other = many[QStringLiteral("fullOtherRows")];
    std::printf("Milliseconds with 1,024 cameras: call %.1f, parse %.1f, markup of the visible rows %.1f\n", call,
                callAndParse - call, frame);
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

QVector<Line> compareText(const Numbers& text) {
    const double build = text[QStringLiteral("build")];
    const double write = text[QStringLiteral("write")];
    std::printf("The text in C++: built in %.1f, the host asked in %.1f, written by QJsonDocument in %.1f\n", build,
                text[QStringLiteral("ask")], write);
    return {{"text without the host's answers, over QJsonDocument", build / write, 1.2, 1.6}};
}

Line compareStart(const char* what, const Numbers& start) {
    const double open = start[QStringLiteral("open")];
    const double plain = start[QStringLiteral("plain")];
    std::printf("%s: %.0f, %.0f\n", what, open, plain);
    return {what, open / plain, 1.15, 1.5};
}

Line compareMemory(const Numbers& memory) {
    std::printf("MiB after 10,000 ticks: %.1f\n", memory[QStringLiteral("end")]);
    return {"memory after 10,000 ticks less that after 1,000, MiB", memory[QStringLiteral("growth")], 5, 12};
}

QVector<Line> compareCommands(const Numbers& commands) {
    QVector<Line> lines;
    const std::pair<const char*, const char*> names[] = {
        {"connect", "connecting 64 cameras of 50 ms, over one of them"},
        {"rate", "the record rate of these"},
        {"arm", "arming these"},
        {"load", "loading their default settings"},
        {"saveSettings", "saving their settings to a file"},
        {"loadSettings", "loading their settings from a file"}};
    for (const auto& [name, what] : names) {
        const QString key = QLatin1String(name);
        std::printf("%s: %.1f, %.1f\n", what, commands[key], commands[key % QLatin1String("One")]);
        lines.append({what, commands[key] / commands[key % QLatin1String("One")], 1.3, 2});
    }
    const double each = commands[QStringLiteral("loadEach")];
    std::printf("load, one camera after the other: %.0f\n", each);
    lines.append({"the same, over one camera after the other", commands[QStringLiteral("load")] / each, 0.03, 0.1});
    // A lock asks no camera, so neither takes any time worth a ratio.
    std::printf("Locking these: %.1f, %.1f\n", commands[QStringLiteral("lock")], commands[QStringLiteral("lockOne")]);
    return lines;
}

QVector<Line> compareEffects(const Numbers& effects) {
    QVector<Line> lines;
    const double plain = effects[QStringLiteral("plain")];
    const std::pair<const char*, const char*> names[] = {
        {"lut", "a frame of 1,024 x 1,024 with levels, over one without"},
        {"pseudo", "with false colours"},
        {"filter", "with sharpening"},
        {"median", "with a median"},
        {"mosaic", "with a mosaic"}};
    std::printf("A frame: %.2f\n", plain);
    for (const auto& [name, what] : names) {
        lines.append({what, effects[QLatin1String(name)] / plain, 1.5, 2});
    }
    return lines;
}

QVector<Line> compareSaves(const Numbers& save, const Numbers& memory) {
    const struct {
        const char* name;
        const char* what;
        double goal;
        double limit;
    } kinds[] = {{"png", "saving PNG pictures, smooth, over ffmpeg", 0.5, 0.8},
                 {"pngNoisy", "noisy", 0.5, 0.8},
                 {"tiff", "TIFF by LZW, smooth", 1, 1.5},
                 {"tiffNoisy", "noisy", 1, 1.5},
                 {"jpeg", "JPEG, smooth", 1, 1.5},
                 {"jpegNoisy", "noisy", 1, 1.5}};
    QVector<Line> lines;
    for (const auto& kind : kinds) {
        const QString name = QLatin1String(kind.name);
        const double other = save[name % QLatin1String("Other")];
        std::printf("%s: %.0f, by ffmpeg %.0f\n", kind.name, save[name], other);
        lines.append({kind.what, save[name] / other, kind.goal, kind.limit});
    }
    lines.append(
        {"eight cameras of 50 ms, over what one has to wait", save[QStringLiteral("slow")] / (64 * 50), 1.1, 1.6});
    lines.append({"longest turn of the event loop meanwhile, ms", save[QStringLiteral("turn")], 30, 100});
    lines.append({"memory while 64,000 frames are saved, MiB", memory[QStringLiteral("growth")], 50, 100});
    return lines;
}

int print(const QVector<Line>& lines) {
    std::printf("\n%-62s %8s %6s %6s\n", "", "measured", "goal", "limit");
    bool held = true;
    for (const Line& line : lines) {
        const char* verdict = line.value > line.limit ? "  passed its limit" : "";
        std::printf("%-62s %8.2f %6.2f %6.2f%s\n", line.what, line.value, line.goal, line.limit, verdict);
        held = held && line.value <= line.limit;
    }
    return held ? 0 : 1;
}

int measureAndCompare(const QString& program) {
    const Measurements measurements(program);
    const auto measured = [&measurements](const char* name, int cameras, int processes = Processes) {
        return measurements.measure(QLatin1String(name), cameras, processes);
    };
    QVector<Line> lines = compareTable(measured("table", Few), measured("table", Many));
    lines += compareText(measured("text", Many));
    lines += compareStart("first painted rows over a plain page, 64 cameras", measured("start", Few));
    lines += compareStart("first painted rows over a plain page, 1,024 cameras", measured("start", Many));
    lines += compareCommands(measured("commands", Few));
    lines += compareEffects(measured("effects", 1));
    lines += compareSaves(measured("save", 1), measured("saveMemory", Few, 1));
    lines += compareMemory(measured("memory", Few, 1));
    return print(lines);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return argc > 2 ? measureHere(argc, argv) : measureAndCompare(QString::fromLocal8Bit(argv[0]));
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 2;
    }
}
