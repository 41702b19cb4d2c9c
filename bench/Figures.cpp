#include "Figures.h"

#include "Measurements.h"

#include <cstdio>
#include <optional>

namespace {

constexpr int Counts[] = {16, 64, 256, 1024};

struct Figure {
    const char* what;
    const char* measurement;
    const char* name;
    /// What takes very long is measured with so many cameras only.
    std::optional<int> only = std::nullopt;
};

const Figure Figures[] = {{"tick, nothing changed, ms", "table", "tickSameText"},
                          {"tick, a tenth of the cameras changed, ms", "table", "tickTenth"},
                          {"full refresh, same rows, all values changed, ms", "table", "sameRowsWhole"},
                          {"full refresh, other rows, ms", "table", "otherRowsWhole"},
                          {"connect all, wall-clock ms", "commands", "connect"},
                          {"record rate to all, wall-clock ms", "commands", "rate"},
                          {"lock all, wall-clock ms", "commands", "lock"},
                          {"arm all, wall-clock ms", "commands", "arm"},
                          {"opening to the first painted rows, wall-clock ms", "start", "open"},
                          {"a plain page with these rows, wall-clock ms", "start", "plain"},
                          {"memory of the process after 1,000 ticks, MiB", "memory", "resident"},
                          {"its growth over 9,000 more, MiB", "growth", "growth", 64}};

}  // namespace

void printFigures(Measurements& measurements) {
    std::printf("| cameras | 16 | 64 | 256 | 1,024 |\n| --- | --: | --: | --: | --: |\n");
    for (const Figure& figure : Figures) {
        std::printf("| %s |", figure.what);
        for (const int cameras : Counts) {
            if (figure.only.value_or(cameras) == cameras) {
                std::printf(" %.1f |", measurements.of({figure.measurement, cameras, figure.name}).median);
            } else {
                std::printf(" |");
            }
        }
        std::printf("\n");
        std::fflush(stdout);
    }
}
