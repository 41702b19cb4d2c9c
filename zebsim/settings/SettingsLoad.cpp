#include "SettingsLoad.h"

#include "Camera.h"
#include "CameraError.h"
#include "TextKey.h"

#include <algorithm>

namespace {

/// What a camera is told with one command, or with several for one setting.
struct Step {
    /// As in `CameraModel::lowLightRefuses`.
    const char* operation;
    QStringList settings;
    void (*give)(Camera& camera, const CameraState& wanted);
};

void setTrigger(Camera& camera, const CameraState& wanted) {
    zeb::TriggerSettings settings;
    settings.randomFrames = wanted.randomFrames;
    settings.randomTimes = wanted.randomTimes;
    camera.setTriggerMode(wanted.triggerMode, settings, wanted.triggerFrame);
}

void setPorts(Camera& camera, const CameraState& wanted) {
    const QMap<int, int> present = camera.get(&CameraState::ports);
    for (int index = 0; index < present.size(); ++index) {
        const int port = present.keys().at(index);
        if (present.value(port) != wanted.ports.value(port)) {
            camera.setPortSignal(index + 1, wanted.ports.value(port));
        }
    }
}

const QList<Step>& steps() {
    static const QList<Step> all{
        {"setResolution",
         {QStringLiteral("resolution")},
         [](Camera& camera, const CameraState& wanted) { camera.setResolution(wanted.resolution); }},
        {"setRecordRate",
         {QStringLiteral("rate")},
         [](Camera& camera, const CameraState& wanted) { camera.setRecordRate(wanted.rate); }},
        {"setShutterSpeed",
         {QStringLiteral("shutter")},
         [](Camera& camera, const CameraState& wanted) { camera.setShutterSpeed(wanted.shutter); }},
        {"setTriggerMode",
         {QStringLiteral("triggerMode"), QStringLiteral("triggerFrame"), QStringLiteral("randomFrames"),
          QStringLiteral("randomTimes")},
         setTrigger},
        {"setRandomTriggerPhase",
         {QStringLiteral("randomCounted")},
         [](Camera& camera, const CameraState& wanted) { camera.setRandomTriggerPhase(wanted.randomCounted); }},
        {"setReduceMode",
         {QStringLiteral("reduce")},
         [](Camera& camera, const CameraState& wanted) { camera.setReduceMode(wanted.reduce); }},
        {"setLowLightType",
         {QStringLiteral("lowLightType")},
         [](Camera& camera, const CameraState& wanted) { camera.setLowLightType(wanted.lowLightType); }},
        {"setResolutionLock",
         {QStringLiteral("resolutionLock")},
         [](Camera& camera, const CameraState& wanted) { camera.setResolutionLock(wanted.resolutionLock); }},
        {"setShutterSpeedLock",
         {QStringLiteral("shutterSpeedLock")},
         [](Camera& camera, const CameraState& wanted) { camera.setShutterSpeedLock(wanted.shutterSpeedLock); }},
        {"setPortSignal", {QStringLiteral("ports")}, setPorts},
        {"setCameraName",
         {QStringLiteral("name")},
         [](Camera& camera, const CameraState& wanted) { camera.setName(wanted.name); }},
        {"setComment",
         {QStringLiteral("comment")},
         [](Camera& camera, const CameraState& wanted) { camera.setComment(wanted.comment); }},
    };
    return all;
}

const QString LowLight = QStringLiteral("lowLight");
const QString Shutter = QStringLiteral("shutter");

const Step& shutterStep() {
    return *std::find_if(steps().begin(), steps().end(),
                         [](const Step& step) { return step.settings.contains(Shutter); });
}

class Load {
public:
    Load(Camera& camera, const CameraPlan& plan)
        : m_camera(camera), m_expected(plan.expected), m_wanted(camera.state()) {
        // Low light mode that is left for a moment would come back with another exposure.
        if (m_wanted.lowLight && !m_expected.contains(Shutter)) {
            m_expected.insert(Shutter, m_wanted.shutter);
        }
        m_wanted.apply(m_expected);
    }

    LoadAnswer run() {
        m_answer.left = whyLeft(m_camera.state());
        if (m_answer.left == CameraPlan::Taken) {
            change();
        }
        return m_answer;
    }

private:
    /// Low light mode refuses some of it, which comes before it, and lets exposures be longer than a frame.
    void change() {
        const bool isInTheWay = std::any_of(steps().begin(), steps().end(), [this](const Step& step) {
            return m_camera.model().lowLightRefuses.contains(QLatin1String(step.operation)) && isOpen(step.settings);
        });
        if (m_camera.get(&CameraState::lowLight) && (isInTheWay || !m_wanted.lowLight)) {
            switchLowLight(false);
        }
        bool isShutterSet = true;
        for (const Step& step : steps()) {
            if (step.settings.contains(Shutter) && m_wanted.shutter < int(m_camera.get(&CameraState::rate))) {
                isShutterSet = false;
            } else {
                giveStep(step);
            }
        }
        loadRest();
        if (m_wanted.lowLight && !m_camera.get(&CameraState::lowLight)) {
            switchLowLight(true);
            // It brings back a shutter of its own.
            isShutterSet = false;
        }
        if (!isShutterSet) {
            giveStep(shutterStep());
        }
    }

    void switchLowLight(bool on) {
        give({LowLight}, [this, on] { m_camera.setLowLight(on); });
    }

    void giveStep(const Step& step) {
        if (isOpen(step.settings)) {
            give(step.settings, [&] { step.give(m_camera, m_wanted); });
        }
    }

    /// What no step has set.
    void loadRest() {
        QVariantMap rest = m_expected;
        rest.remove(LowLight);
        for (const Step& step : steps()) {
            for (const QString& name : step.settings) {
                rest.remove(name);
            }
        }
        for (const QString& name : rest.keys()) {
            if (!isOpen({name})) {
                rest.remove(name);
            }
        }
        if (!rest.isEmpty()) {
            give(rest.keys(), [&] { m_camera.loadSettings(rest); });
        }
    }

    /// Whether one of them is another than it is to be: by now, for a head may have changed it for all.
    bool isOpen(const QStringList& names) const {
        const QVariantMap present = m_camera.state().toPlain(names);
        return std::any_of(names.begin(), names.end(), [&](const QString& name) {
            return m_expected.contains(name) && m_expected.value(name) != present.value(name);
        });
    }

    template <typename Command>
    void give(const QStringList& settings, const Command& command) {
        try {
            requireUntouched();
            command();
        } catch (const CameraError& error) {
            const auto same =
                std::find_if(m_answer.refusals.begin(), m_answer.refusals.end(),
                             [&](const LoadAnswer::Refusal& refusal) { return refusal.reason == error.reason(); });
            if (same == m_answer.refusals.end()) {
                m_answer.refusals.append({settings, error.reason()});
            } else {
                same->settings += settings;
            }
        }
    }

    /// Somebody else may have locked or armed it since the last command.
    void requireUntouched() const {
        switch (whyLeft(m_camera.state())) {
            case CameraPlan::Locked:
                throw CameraError(m_camera.name(), TextKey("the camera is locked"));
            case CameraPlan::Armed:
            case CameraPlan::Recording:
                throw CameraError(m_camera.name(), TextKey("the camera is ready or records"));
            default:
                break;
        }
    }

    Camera& m_camera;
    QVariantMap m_expected;
    CameraState m_wanted;
    LoadAnswer m_answer;
};

}  // namespace

LoadAnswer loadSettings(Camera& camera, const CameraPlan& plan) {
    return Load(camera, plan).run();
}

void readBack(Camera& camera, LoadAnswer& answer) {
    if (answer.left != CameraPlan::Taken) {
        return;
    }
    try {
        answer.settings = camera.readSettings(OPERATION("readSettings")).toPlain(CameraState::settings());
    } catch (const CameraError& error) {
        answer.whyUnread = error.reason();
    }
}
