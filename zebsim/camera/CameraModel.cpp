#include "CameraModel.h"

#include "PlainState.h"
#include "SettingLimits.h"
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

bool CameraModel::isShared(const QString& setting) const {
    static const QStringList always{QStringLiteral("rate"), QStringLiteral("triggerMode"),
                                    QStringLiteral("randomFrames"), QStringLiteral("randomTimes"),
                                    QStringLiteral("randomCounted")};
    // Heads of one resolution hold as many frames.
    static const QStringList ofResolution{QStringLiteral("resolution"), QStringLiteral("triggerFrame")};
    return always.contains(setting) || (sharesShutter && setting == QLatin1String("shutter")) ||
           (sharesResolution && ofResolution.contains(setting));
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
    checkLimits(state.toPlain(CameraState::settings()));
    checkPresets(state);
}

void CameraModel::checkPresets(const CameraState& state) const {
    const auto require = [](bool holds, const QString& reason) {
        if (!holds) {
            throw StateError{QStringLiteral("presets"), reason};
        }
    };
    for (auto preset = state.presets.begin(); preset != state.presets.end(); ++preset) {
        const int number = preset.key().toInt();
        require(number >= 1 && number <= presets && preset->type() == QVariant::Map,
                QStringLiteral("there is no preset \"%1\"").arg(preset.key()));
        CameraState loaded = initial;
        loaded.presets.clear();
        const QVariantMap members = preset->toMap();
        for (auto member = members.begin(); member != members.end(); ++member) {
            require(CameraState::recordSettings().contains(member.key()),
                    QStringLiteral("preset %1 can't keep \"%2\"").arg(preset.key(), member.key()));
        }
        try {
            loaded.apply(members);
            check(loaded);
        } catch (const StateError& error) {
            require(false, QStringLiteral("preset %1, %2: %3").arg(preset.key(), error.member, error.reason));
        }
    }
    if (state.preset < 0 || state.preset > presets) {
        throw StateError{QStringLiteral("preset"), QStringLiteral("there is no preset %1").arg(state.preset)};
    }
}

unsigned int CameraModel::frameCapacity(const CameraState& state) const {
    const qint64 frameBytes = qint64(state.resolution.width()) * state.resolution.height();
    const qint64 bytes = (qint64(memory) << 20) / std::max(1U, state.partitions);
    const qint64 most = std::numeric_limits<int>::max();
    return frameBytes > 0 ? static_cast<unsigned int>(std::min(most, bytes / frameBytes)) : 0;
}
