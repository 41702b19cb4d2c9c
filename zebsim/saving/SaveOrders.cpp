#include "SaveOrders.h"

QString SaveOrders::fileOf(const SaveTrack& track, int index) const {
    const qint64 number = track.number(index);
    const QString text = QString::number(qAbs(number)).rightJustified(frameDigits, QLatin1Char('0'));
    const QString ending = format.isOneFile() ? QString() : QString((number < 0 ? "_-" : "_") % text);
    return track.stem % ending % QLatin1Char('.') % format.suffix;
}
