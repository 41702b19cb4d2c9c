#include "SkipPrefs.h"

#include "FrameSkip.h"
#include "FrameSkipRule.h"
#include "ZebHost.h"

#include <limits>

namespace {

constexpr double MillisecondsPerSecond = 1000;

/// As far as a number of frames goes.
double bounded(double frames) {
    return qBound(0.0, frames, double(std::numeric_limits<int>::max()));
}

int framesIn(double milliseconds, double rate) {
    return qRound(bounded(milliseconds / MillisecondsPerSecond * rate));
}

}  // namespace

QVariant SkipPrefs::pref(const char* name, const QVariant& fallback) const {
    return m_host.getPref(m_family % QLatin1String(name), fallback);
}

void SkipPrefs::set(const char* name, const QVariant& value) {
    m_host.setPref(m_family % QLatin1String(name), value);
}

double SkipPrefs::distance(const FrameSkip& skip) const {
    const double frames = pref("skipsaveframe").toInt();
    if (mode() != SkipByTime) {
        return frames;
    }
    const double time = skip.rate == 0 ? frames : frames * MillisecondsPerSecond / skip.rate;
    return pref("skipsavemsec", skip.nearest(time)).toDouble();
}

void SkipPrefs::setDistance(double distance, const FrameSkip& skip) {
    if (mode() != SkipByTime) {
        set("skipsaveframe", int(bounded(distance)));
        return;
    }
    const double time = skip.nearest(distance);
    set("skipsavemsec", time);
    if (skip.rate != 0) {
        set("skipsaveframe", framesIn(time, skip.rate));
    }
}

int SkipPrefs::step(unsigned int rate) const {
    const auto read = [this](const QString& key) { return m_host.getPref(key, {}); };
    return m_hasSkip ? FrameSkipRule::chosen(read, m_family).stepAt(rate) : 1;
}
