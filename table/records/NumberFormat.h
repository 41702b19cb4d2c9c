#pragma once

#include <QString>

/// Numbers as the user reads them. `delimited` puts in the group separators of the user's language.
namespace numberformat {

QString number(qlonglong value, bool delimited);

/// A rate with its unit behind a blank; empty for 0.
QString rate(unsigned int value, const QString& unit, bool delimited);

/// What a manual trigger at `triggerFrame` leaves of a memory of `frameCount` frames, in percent with at most two
/// decimals, as "33.33"; empty for a memory without frames.
QString manualTriggerPercent(int triggerFrame, unsigned int frameCount);

}  // namespace numberformat
