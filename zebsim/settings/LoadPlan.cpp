#include "LoadPlan.h"

#include "OfferedSetting.h"

#include <QHash>
#include <QPair>

#include <algorithm>
#include <numeric>

namespace {

const QString Ports = QStringLiteral("ports");
const QString Plugins = QStringLiteral("effectivePlugins");
const QString Rate = QStringLiteral("rate");
const QString Shutter = QStringLiteral("shutter");
const QString LowLight = QStringLiteral("lowLight");
const QString Variable = QStringLiteral("variable");
const QString VariableChannels = QStringLiteral("variableChannels");

QStringList sorted(QStringList names) {
    names.sort();
    return names;
}

/// A file may leave out ports that the camera has, and the order of plug-ins means nothing.
bool isMet(const QString& name, const QVariant& asked, const QVariant& is) {
    if (name == Plugins) {
        return sorted(asked.toStringList()) == sorted(is.toStringList());
    }
    if (name != Ports) {
        return asked == is;
    }
    QVariantMap ports = is.toMap();
    const QVariantMap wanted = asked.toMap();
    for (auto port = wanted.begin(); port != wanted.end(); ++port) {
        ports.insert(port.key(), port.value());
    }
    return ports == is;
}

CameraPlan::Left leftOf(const PlanCamera& camera) {
    return camera.isGone ? CameraPlan::Gone : whyLeft(camera.state);
}

/// Plans the cameras one after the other; knows the other heads of their devices.
class Planner {
public:
    Planner(const QList<HeadSettings>& file, const QList<PlanCamera>& cameras) : m_file(file), m_cameras(cameras) {
        for (const HeadSettings& head : file) {
            m_asked.insert({head.address, head.head}, &head);
        }
        for (const PlanCamera& camera : cameras) {
            m_devices[camera.address].append(&camera);
        }
    }

    LoadPlan plan() const {
        LoadPlan plan;
        for (const PlanCamera& camera : m_cameras) {
            const HeadSettings* asked = askedOf(camera);
            if (asked != nullptr || (camera.state.connected && !camera.isGone)) {
                plan.cameras.append(asked != nullptr ? planCamera(camera, *asked) : planFollower(camera));
            }
        }
        for (const HeadSettings& head : m_file) {
            if (!isThere(head)) {
                plan.absent.append(head.head == 1 ? head.address
                                                  : QStringLiteral("%1-%2").arg(head.address).arg(head.head));
            }
        }
        return plan;
    }

private:
    /// What the file has for it, or null.
    const HeadSettings* askedOf(const PlanCamera& camera) const { return m_asked.value({camera.address, camera.head}); }

    bool isThere(const HeadSettings& head) const {
        const QList<const PlanCamera*> heads = m_devices.value(head.address);
        return std::any_of(heads.begin(), heads.end(),
                           [&head](const PlanCamera* camera) { return camera->head == head.head; });
    }

    CameraPlan planFollower(const PlanCamera& camera) const {
        CameraPlan plan;
        plan.camera = camera;
        plan.left = CameraPlan::NotInFile;
        follow(plan);
        return plan;
    }

    CameraPlan planCamera(const PlanCamera& camera, const HeadSettings& file) const {
        CameraPlan plan = planAlone(camera, file);
        if (plan.left == CameraPlan::Taken) {
            follow(plan);
        }
        return plan;
    }

    /// What the file does not tell of a head it has from another, if they share the setting.
    void follow(CameraPlan& plan) const {
        const QVariantMap present = plan.camera.state.toPlain(CameraState::settings());
        for (const PlanCamera* other : m_devices.value(plan.camera.address)) {
            const HeadSettings* asked = askedOf(*other);
            if (asked == nullptr || other->head == plan.camera.head) {
                continue;
            }
            for (const SettingPlan& setting : planAlone(*other, *asked).settings) {
                const QVariant from = present.value(setting.name);
                if (plan.camera.model->isShared(setting.name) && !plan.expected.contains(setting.name) &&
                    setting.isChange() && setting.to != from) {
                    plan.settings.append({setting.name, from, {}, setting.to});
                    plan.expected.insert(setting.name, setting.to);
                    plan.notInFile.removeOne(setting.name);
                }
            }
        }
        fitShutter(plan);
    }

    CameraPlan planAlone(const PlanCamera& camera, const HeadSettings& file) const {
        CameraPlan plan;
        plan.camera = camera;
        plan.left = leftOf(camera);
        if (plan.left != CameraPlan::Taken) {
            return plan;
        }
        const QVariantMap present = camera.state.toPlain(CameraState::settings());
        for (const QString& name : CameraState::settings()) {
            if (!file.settings.contains(name)) {
                plan.notInFile.append(name);
                continue;
            }
            const SettingPlan setting = planSetting(camera, name, present.value(name), file.settings.value(name));
            plan.expected.insert(name, setting.to);
            if (setting.isChange() || setting.why != SettingPlan::AsAsked) {
                plan.settings.append(setting);
            } else {
                ++plan.equal;
            }
        }
        fitShutter(plan);
        fitVariable(plan);
        return plan;
    }

    SettingPlan planSetting(const PlanCamera& camera, const QString& name, const QVariant& from,
                            const QVariant& asked) const {
        SettingPlan setting{name, from, asked, offeredSetting(name, asked, camera.state, *camera.model)};
        if (!isMet(name, asked, setting.to)) {
            setting.why = SettingPlan::NotOffered;
        } else if (isMet(name, asked, from)) {
            setting.to = from;
        }
        if (camera.model->isShared(name) && asked != from) {
            const SettingPlan::Why why = whyNotShared(camera, name, asked);
            setting.why = why == SettingPlan::AsAsked ? setting.why : why;
            setting.to = why == SettingPlan::AsAsked ? setting.to : from;
        }
        return setting;
    }

    SettingPlan::Why whyNotShared(const PlanCamera& camera, const QString& name, const QVariant& asked) const {
        for (const PlanCamera* other : m_devices.value(camera.address)) {
            if (other->head == camera.head) {
                continue;
            }
            if (leftOf(*other) != CameraPlan::Taken) {
                return SettingPlan::OtherHeadIsLeft;
            }
            const HeadSettings* settings = askedOf(*other);
            if (settings != nullptr && settings->settings.value(name, asked) != asked) {
                return SettingPlan::HeadsDiffer;
            }
        }
        return SettingPlan::AsAsked;
    }

    /// What a camera makes of its shutter when that, the rate or the low light mode is set.
    static void fitShutter(CameraPlan& plan) {
        const auto isOfExposure = [](const SettingPlan& setting) {
            return setting.isChange() && (setting.name == Rate || setting.name == Shutter || setting.name == LowLight);
        };
        if (std::none_of(plan.settings.begin(), plan.settings.end(), isOfExposure)) {
            return;
        }
        const CameraState& state = plan.camera.state;
        const int shutter = plan.expected.value(Shutter, state.shutter).toInt();
        const unsigned int rate = plan.expected.value(Rate, state.rate).toUInt();
        const int fitting = plan.camera.model->fittingShutter(shutter, rate);
        if (plan.expected.value(LowLight, state.lowLight).toBool() || fitting == shutter) {
            return;
        }
        auto setting = std::find_if(plan.settings.begin(), plan.settings.end(),
                                    [](const SettingPlan& each) { return each.name == Shutter; });
        if (setting == plan.settings.end()) {
            plan.equal -= plan.expected.contains(Shutter) ? 1 : 0;
            plan.settings.append({Shutter, state.shutter, plan.expected.value(Shutter), {}});
            setting = plan.settings.end() - 1;
        }
        setting->to = fitting;
        setting->why = SettingPlan::LongerThanFrame;
        plan.expected.insert(Shutter, fitting);
    }

    /// Channels without a text can't be chosen.
    static void fitVariable(CameraPlan& plan) {
        const CameraState& state = plan.camera.state;
        const int channel = plan.expected.value(Variable, state.variable).toInt();
        const QStringList channels = plan.expected.value(VariableChannels, state.variableChannels).toStringList();
        for (SettingPlan& setting : plan.settings) {
            if (setting.name == Variable && channel > 0 && channels.value(channel - 1).isEmpty()) {
                setting.to = setting.from;
                setting.why = SettingPlan::NotOffered;
                plan.expected.insert(Variable, setting.to);
            }
        }
    }

    const QList<HeadSettings>& m_file;
    const QList<PlanCamera>& m_cameras;
    /// By address and number of the head.
    QHash<QPair<QString, int>, const HeadSettings*> m_asked;
    /// Heads by the address of their device.
    QHash<QString, QList<const PlanCamera*>> m_devices;
};

}  // namespace

QVariantMap CameraPlan::changes() const {
    QVariantMap changes;
    for (const SettingPlan& setting : settings) {
        if (setting.isChange()) {
            changes.insert(setting.name, setting.to);
        }
    }
    return changes;
}

int LoadPlan::changes() const {
    return std::accumulate(cameras.begin(), cameras.end(), 0,
                           [](int sum, const CameraPlan& camera) { return sum + camera.changes().size(); });
}

int LoadPlan::changingCameras() const {
    return int(std::count_if(cameras.begin(), cameras.end(),
                             [](const CameraPlan& camera) { return !camera.changes().isEmpty(); }));
}

int LoadPlan::equal() const {
    return std::accumulate(cameras.begin(), cameras.end(), 0,
                           [](int sum, const CameraPlan& camera) { return sum + camera.equal; });
}

bool LoadPlan::isOdd() const {
    const auto isCameraOdd = [](const CameraPlan& camera) {
        return (camera.left != CameraPlan::Taken && camera.left != CameraPlan::NotInFile) ||
               std::any_of(camera.settings.begin(), camera.settings.end(),
                           [](const SettingPlan& setting) { return setting.why != SettingPlan::AsAsked; });
    };
    return !absent.isEmpty() || std::any_of(cameras.begin(), cameras.end(), isCameraOdd);
}

CameraPlan::Left whyLeft(const CameraState& state) {
    if (!state.connected) {
        return CameraPlan::NotConnected;
    }
    switch (state.recordState) {
        case zeb::RecordLive:
        case zeb::RecordError:
            return state.locked ? CameraPlan::Locked : CameraPlan::Taken;
        case zeb::RecordRecording:
            return CameraPlan::Recording;
        default:
            return CameraPlan::Armed;
    }
}

LoadPlan planLoad(const QList<HeadSettings>& file, const QList<PlanCamera>& cameras) {
    return Planner(file, cameras).plan();
}
