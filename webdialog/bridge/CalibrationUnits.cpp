#include "CalibrationUnits.h"

#include "ZebHost.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

struct Unit {
    const char* label;
    const char* shortName;
};

constexpr Unit Metric[] = {
    {"Micro (µm)", QT_TR_NOOP("µm")}, {"Milimeters (mm)", QT_TR_NOOP("mm")}, {"Meters (m)", QT_TR_NOOP("m")}};
constexpr Unit Imperial[] = {
    {"Inches (in)", QT_TR_NOOP("inch")}, {"Feet (ft)", QT_TR_NOOP("feet")}, {"Yard (yd)", QT_TR_NOOP("yard")}};

}  // namespace

QString calibrationUnits(const ZebHost& host) {
    QJsonArray units;
    for (const Unit& unit : host.getPrefInt(QStringLiteral("customize/unitSystem")) != 0 ? Metric : Imperial) {
        units.append(QJsonObject{{QStringLiteral("value"), QString::fromUtf8(unit.label)},
                                 {QStringLiteral("view"), host.translate(QString::fromUtf8(unit.shortName))}});
    }
    return QString::fromUtf8(QJsonDocument(units).toJson(QJsonDocument::Compact));
}
