#include "SettingLimits.h"

#include "PlainState.h"
#include "ZebTypes.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <limits>

namespace {

constexpr int Most = std::numeric_limits<int>::max();

struct Limits {
    double lowest;
    double highest;
};

/// Of those settings that are numbers, or pairs of them.
const QHash<QString, Limits>& limits() {
    static const QHash<QString, Limits> all{
        {QStringLiteral("resolution"), {1, 65535}},
        {QStringLiteral("rate"), {1, Most}},
        {QStringLiteral("shutter"), {1, Most}},
        {QStringLiteral("triggerMode"), {zeb::TriggerStart, zeb::TriggerNoneError}},
        {QStringLiteral("triggerFrame"), {0, Most}},
        {QStringLiteral("randomFrames"), {0, Most}},
        {QStringLiteral("randomTimes"), {0, Most}},
        {QStringLiteral("lowLightType"), {zeb::LowLightTypeFast, zeb::LowLightTypeFine}},
        {QStringLiteral("dualSlope"), {0, Most}},
        {QStringLiteral("variable"), {0, zeb::VariableChannels}},
        {QStringLiteral("binningPower"), {0, 8}},
        {QStringLiteral("frameSkipMode"), {0, Most}},
        {QStringLiteral("frameSkip"), {1, Most}},
        {QStringLiteral("scale"), {0, Most}},
        {QStringLiteral("rotation"), {-1, 1}},
        {QStringLiteral("zoom"), {0.001, 1000}},
    };
    return all;
}

bool isSignal(int number) {
    return (number >= zeb::SignalOff && number <= zeb::SignalNormallyClose) || number == zeb::SignalPowerOffPos ||
           number == zeb::SignalPowerOffNeg || number == zeb::SignalRemoteOn;
}

bool isNumber(const QVariant& value) {
    static const QSet<int> types{QMetaType::Int, QMetaType::UInt, QMetaType::LongLong, QMetaType::ULongLong,
                                 QMetaType::Double};
    return types.contains(value.userType());
}

QString whyOutOfLimits(const QString& name, const QVariant& value) {
    const auto limit = limits().constFind(name);
    const QVariantList numbers = value.type() == QVariant::List ? value.toList() : QVariantList{value};
    const auto isWithin = [&limit](const QVariant& number) {
        return number.toDouble() >= limit->lowest && number.toDouble() <= limit->highest;
    };
    if (limit == limits().constEnd() || std::all_of(numbers.begin(), numbers.end(), isWithin)) {
        return {};
    }
    return QStringLiteral("a number from %1 to %2 is expected")
        .arg(QString::number(limit->lowest), QString::number(limit->highest, 'f', 0));
}

QString whyNoPorts(const QVariantMap& ports) {
    const bool areSignals =
        std::all_of(ports.begin(), ports.end(), [](const QVariant& number) { return isSignal(number.toInt()); });
    return areSignals ? QString() : QStringLiteral("there is no such signal");
}

QString whyNoNumbers(const QVariantMap& plugins) {
    for (const QVariant& plugin : plugins) {
        const QVariantMap values = plugin.toMap();
        if (plugin.type() != QVariant::Map || !std::all_of(values.begin(), values.end(), isNumber)) {
            return QStringLiteral("an object with numbers is expected for each plug-in");
        }
    }
    return {};
}

QString whyNot(const QString& name, const QVariant& value) {
    if (name == QLatin1String("ports")) {
        return whyNoPorts(value.toMap());
    }
    if (name == QLatin1String("pluginValues")) {
        return whyNoNumbers(value.toMap());
    }
    if (name == QLatin1String("variableChannels") && value.toStringList().size() > zeb::VariableChannels) {
        return QStringLiteral("there are at most %1 channels").arg(zeb::VariableChannels);
    }
    return whyOutOfLimits(name, value);
}

}  // namespace

void checkLimits(const QVariantMap& settings) {
    for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
        const QString reason = whyNot(setting.key(), setting.value());
        if (!reason.isEmpty()) {
            throw StateError{setting.key(), reason};
        }
    }
}
