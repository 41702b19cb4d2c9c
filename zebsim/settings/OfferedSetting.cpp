#include "OfferedSetting.h"

#include <QHash>

#include <stdexcept>

namespace {

/// The function that a model must have for a setting.
const QHash<QString, int>& functions() {
    static const QHash<QString, int> all{
        {QStringLiteral("reduce"), zeb::FunctionReduceMode},
        {QStringLiteral("lowLight"), zeb::FunctionLowLight},
        {QStringLiteral("lowLightType"), zeb::FunctionLowLight},
        {QStringLiteral("irig"), zeb::FunctionIrig},
        {QStringLiteral("irigStampAtEnd"), zeb::FunctionIrigTimeStampPosition},
        {QStringLiteral("irigSync"), zeb::FunctionIrigSync},
        {QStringLiteral("variable"), zeb::FunctionVariable},
        {QStringLiteral("variableChannels"), zeb::FunctionVariable},
    };
    return all;
}

bool isOffered(const QString& name, const CameraState& asked, const CameraModel& model) {
    if (functions().contains(name)) {
        return model.functions.contains(functions().value(name));
    }
    if (name == QLatin1String("resolution")) {
        return model.resolutions.contains(asked.resolution);
    }
    if (name == QLatin1String("shutter")) {
        return model.shutters.contains(asked.shutter);
    }
    if (name == QLatin1String("triggerMode")) {
        return model.triggerModes.contains(asked.triggerMode);
    }
    return name != QLatin1String("binningPower") || model.capabilities.contains(QStringLiteral("binning"));
}

unsigned int offeredRate(unsigned int asked, unsigned int present, const CameraModel& model) {
    try {
        return model.acceptedRate(asked);
    } catch (const std::invalid_argument&) {
        return present;
    }
}

/// Signals at the ports that the camera has.
QMap<int, int> offeredPorts(const QMap<int, int>& asked, QMap<int, int> ports) {
    for (auto port = ports.begin(); port != ports.end(); ++port) {
        port.value() = asked.value(port.key(), port.value());
    }
    return ports;
}

QStringList offeredPlugins(const QStringList& asked, const QStringList& plugins) {
    QStringList offered;
    for (const QString& plugin : asked) {
        if (plugins.contains(plugin)) {
            offered.append(plugin);
        }
    }
    return offered;
}

}  // namespace

QVariant offeredSetting(const QString& name, const QVariant& asked, const CameraState& state,
                        const CameraModel& model) {
    CameraState offered = state;
    offered.apply({{name, asked}});
    if (!isOffered(name, offered, model)) {
        offered = state;
    }
    offered.rate = offeredRate(offered.rate, state.rate, model);
    offered.ports = offeredPorts(offered.ports, state.ports);
    offered.effectivePlugins = offeredPlugins(offered.effectivePlugins, state.plugins);
    return offered.toPlain({name}).value(name);
}
