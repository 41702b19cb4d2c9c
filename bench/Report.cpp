#include "Report.h"

#include "Measurements.h"
#include "Sections.h"

#include <cstdio>

namespace {

void printSpread(const char* what, const Spread& spread) {
    std::printf("%-58s %8.2f %8.2f %8.2f", what, spread.median, spread.smallest, spread.largest);
}

bool printLine(Measurements& measurements, const Line& line) {
    const Spread value = measurements.of(line.value);
    const bool isRatio = line.over.name != nullptr;
    const Spread told = isRatio ? measurements.ratio(line.value, line.over) : value;
    printSpread(line.what, told);
    const bool held = line.limit == 0 || told.median <= line.limit;
    if (line.limit > 0) {
        std::printf(" %7.2f %7.2f", line.goal, line.limit);
    } else {
        std::printf(" %15s", "");
    }
    if (isRatio) {
        std::printf("  %.1f over %.1f", value.median, measurements.of(line.over).median);
    }
    std::printf("%s\n", held ? "" : "  passed its limit");
    return held;
}

}  // namespace

bool printReport(Measurements& measurements) {
    bool held = true;
    std::printf(
        "Medians of three processes, with the smallest and the largest; a ratio is of numbers of one process,\n"
        "but for those of 1,024 over 64 cameras, which take the processes in their order.\n"
        "Time is processor time, in milliseconds, unless it is called wall-clock.\n");
    for (const Section& section : reportSections()) {
        std::printf("\n%s\n%-58s %8s %8s %8s %7s %7s  %s\n", section.text, "", "median", "from", "to", "goal", "limit",
                    "of");
        for (const Line& line : section.lines) {
            held = printLine(measurements, line) && held;
        }
        std::fflush(stdout);
    }
    return held;
}
