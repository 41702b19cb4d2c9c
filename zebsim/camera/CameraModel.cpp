#include "CameraModel.h"

#include "PlainState.h"
#include "SyncSource.h"

#include <algorithm>
#include <limits>

unsigned int CameraModel::acceptedRate(unsigned int rate) const {
    if (rates.contains(rate)) {
        return rate;
    }
    if (rateRule == RefuseRate) {
        throw std::invalid_argument(QStringLiteral("a rate of %1 fps is not supported").arg(rate).toStdString());
    }
    unsigned int accepted = *std::min_element(rates.begin(), rates.end());
    for (const unsigned int offered : rates) {
        if (offered <= rate) {
            accepted = std::max(accepted, offered);
        }
    }
    return accepted;
}

int CameraModel::fittingShutter(int speed, unsigned int rate) const {
    if (speed >= int(rate)) {
        return speed;
    }
    int fitting = *std::max_element(shutters.begin(), shutters.end());
    for (const int offered : shutters) {
        if (offered >= int(rate)) {
            fitting = std::min(fitting, offered);
        }
    }
    return fitting;
}

void CameraModel::check(const CameraState& state) const {
    const auto require = [this](bool offered, const char* member) {
        if (!offered) {
            throw StateError{QString::fromLatin1(member),
                             QStringLiteral("the model \"%1\" does not offer this").arg(name)};
        }
    };
    require(rates.contains(state.rate), "rate");
    require(resolutions.contains(state.resolution), "resolution");
    require(shutters.contains(state.shutter), "shutter");
    require(triggerModes.contains(state.triggerMode), "triggerMode");
    if (!QStringList{QString(), SyncSource::External, SyncSource::Hub, SyncSource::Chain}.contains(state.syncSource)) {
        throw StateError{QStringLiteral("syncSource"),
                         QStringLiteral("\"external\", \"hub\", \"chain\" or an empty text is expected")};
    }
}

unsigned int CameraModel::frameCapacity(const CameraState& state) const {
    const qint64 frameBytes = qint64(state.resolution.width()) * state.resolution.height();
    const qint64 bytes = (qint64(memory) << 20) / std::max(1U, state.partitions);
    const qint64 most = std::numeric_limits<int>::max();
    return frameBytes > 0 ? static_cast<unsigned int>(std::min(most, bytes / frameBytes)) : 0;
}
