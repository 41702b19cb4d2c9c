#include "FrameSkipRule.h"

#include <QString>

#include <algorithm>
#include <limits>

namespace {

/// A `FrameSkipMode`.
constexpr int ByTime = 1;
constexpr double SpansInMillisecond = 10000;
constexpr double LongestMs = 24 * 3600 * 1000.0;

}  // namespace

int FrameSkipRule::stepAt(unsigned int rate) const {
    if (span == 0) {
        return frames;
    }
    // Second by second, so that no product is too large.
    const qint64 rest = (span % SpansInSecond * rate + SpansInSecond / 2) / SpansInSecond;
    return int(std::clamp<qint64>(span / SpansInSecond * rate + rest, 1, std::numeric_limits<int>::max()));
}

FrameSkipRule FrameSkipRule::chosen(const PrefReader& pref, const QString& family) {
    FrameSkipRule skip;
    if (!pref(family % QStringLiteral("skipsave")).toBool()) {
        return skip;
    }
    skip.frames = std::max(1, pref(family % QStringLiteral("skipsaveframe")).toInt());
    const double time = pref(family % QStringLiteral("skipsavemsec")).toDouble();
    if (pref(family % QStringLiteral("skipunit")).toInt() == ByTime && time > 0 && time <= LongestMs) {
        skip.span = qRound64(time * SpansInMillisecond);
    }
    return skip;
}
