#include "FrameSkip.h"

#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "ZebHost.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace {

constexpr double MillisecondsPerSecond = 1000.0;

double toFourDecimals(double value) {
    constexpr double Places = 10000.0;
    const double whole = std::floor(value);
    return whole + std::floor((value - whole) * Places + 0.5) / Places;
}

QList<double> multiples(double step, double last) {
    QList<double> values;
    if (step <= 0.0) {
        return values;  // rates so high that a frame takes no time
    }
    for (unsigned int i = 1; toFourDecimals(i * step) <= last; ++i) {
        values.append(toFourDecimals(i * step));
    }
    return values;
}

}  // namespace

double FrameSkip::clamped(double value) const {
    return value >= minFrames && value <= maxFrames ? value : minFrames;
}

double FrameSkip::nearest(double value) const {
    const auto distance = [value](double each) { return toFourDecimals(std::abs(each - value)); };
    const auto found = std::min_element(
        list.begin(), list.end(), [distance](double left, double right) { return distance(left) < distance(right); });
    return found == list.end() ? value : *found;
}

FrameSkip skipByFrames(FrameSkip skip, unsigned int leastFrames) {
    skip.minFrames = 1.0;
    skip.maxFrames = leastFrames;
    return skip;
}

FrameSkip skipByTime(FrameSkip skip, const QList<unsigned int>& rates, unsigned int leastFrames) {
    unsigned int divisor = 0;
    for (const unsigned int rate : rates) {
        divisor = std::gcd(divisor, rate);
    }
    const int rate = static_cast<int>(divisor);
    if (std::exchange(skip.rate, rate) != rate) {
        skip.list.clear();
    }

    skip.minFrames = rate == 0 ? 1.0 : toFourDecimals(MillisecondsPerSecond / rate);
    skip.maxFrames = leastFrames == NoFrameCount ? skip.minFrames : toFourDecimals(leastFrames * skip.minFrames);
    if (skip.list.isEmpty()) {
        skip.list = multiples(skip.minFrames, skip.maxFrames);
    }
    if (!skip.list.contains(skip.maxFrames)) {
        skip.list.append(skip.maxFrames);
    }
    return skip;
}

unsigned int leastFrameCount(const ExportTargets& targets) {
    unsigned int least = NoFrameCount;
    for (auto target = targets.begin(); target != targets.end(); ++target) {
        for (const PARTITIONNUMBER partition : target.value()) {
            const unsigned int count = target.key()->frames().getFrameCount(static_cast<int>(partition), 0);
            if (count > 0) {
                least = std::min(least, count);
            }
        }
    }
    return least;
}

QList<unsigned int> recordRates(const ZebHost& host, const ExportTargets& targets) {
    QList<unsigned int> rates;
    const auto add = [&rates](unsigned int rate) {
        if (rate > 0) {
            rates.append(rate);
        }
    };
    for (auto target = targets.begin(); target != targets.end(); ++target) {
        const DOC_Control& camera = target.key()->control();
        if (host.isMemoryMode()) {
            for (const PARTITIONNUMBER partition : target.value()) {
                add(camera.getRecordedRateOfPartition(partition));
            }
        } else {
            add(camera.getRecordRate(0));
        }
    }
    return rates;
}
