#include "SizeText.h"

#include <QString>

QString sizeText(qint64 bytes) {
    constexpr int Decimals = 2;
    constexpr double Step = 1024;
    double value = double(qMax<qint64>(bytes, 0)) / Step;
    const char* unit = "KB";
    for (const char* larger : {"MB", "GB", "TB"}) {
        if (value < Step) {
            break;
        }
        value /= Step;
        unit = larger;
    }
    constexpr double Places = 100;
    return QString::number(double(qRound64(value * Places)) / Places, 'f', Decimals) % QLatin1String(unit);
}
