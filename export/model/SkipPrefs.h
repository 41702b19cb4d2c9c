#pragma once

#include "JobKind.h"

#include <QVariant>

class ZebHost;
struct FrameSkip;

/// The preferences that say how a job thins out its frames. GUI thread.
class SkipPrefs {
public:
    /// `host` must outlive the object.
    SkipPrefs(ZebHost& host, JobKind kind)
        : m_host(host), m_family(skipFamily(kind)), m_hasSkip(kind != JobKind::Convert && kind != JobKind::Snap) {}

    /// A `FrameSkipMode`.
    int mode() const { return pref("skipunit").toInt(); }
    void setMode(int mode) { set("skipunit", mode); }

    /// From one saved frame to the next: frames or, by time, milliseconds. Of times the nearest that `skip` offers is
    /// taken.
    double distance(const FrameSkip& skip) const;
    void setDistance(double distance, const FrameSkip& skip);

    /// Frames from one that is saved to the next, of a recording of so many frames a second; 1 when all are.
    int step(unsigned int rate) const;

private:
    QVariant pref(const char* name, const QVariant& fallback = {}) const;
    void set(const char* name, const QVariant& value);

    ZebHost& m_host;
    const QString m_family;
    const bool m_hasSkip;
};
