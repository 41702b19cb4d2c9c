#include "NumberFormat.h"

#include <cmath>

namespace numberformat {

QString number(qlonglong value, bool delimited) {
    return (delimited ? QStringLiteral("%L1") : QStringLiteral("%1")).arg(value);
}

QString rate(unsigned int value, const QString& unit, bool delimited) {
    return value == 0 ? QString() : QString(number(value, delimited) % QLatin1Char(' ') % unit);
}

QString manualTriggerPercent(int triggerFrame, unsigned int frameCount) {
    if (frameCount == 0) {
        return {};
    }
    const double before = std::round(triggerFrame * 10000.0 / frameCount);
    return QString::number((10000.0 - before) / 100.0);
}

}  // namespace numberformat
