#pragma once

#include "LoadPlan.h"
#include "SettingsLoad.h"

#include <functional>
#include <memory>
#include <vector>

class Camera;
struct HeadSettings;
struct HostContext;

/// Brings cameras to given settings, side by side. GUI thread.
class SettingsBatch {
public:
    explicit SettingsBatch(const HostContext& host) : m_host(host) {}

    /// What a camera was to become, and what it has answered.
    struct Row {
        const CameraPlan* plan;
        /// Null when it has vanished since it was planned.
        std::shared_ptr<Camera> camera;
        LoadAnswer answer;
        /// It was never asked, with the reason in the user's language.
        QString leftOut;
    };

    /// What the cameras that are there by now would make of `wanted`.
    LoadPlan plan(const QList<HeadSettings>& wanted) const;
    /// Changes those that `isMeant`, and tells them by the plan's own rows; the plan must outlive these. Event loops
    /// run.
    std::vector<Row> carryOut(const LoadPlan& plan, const std::function<bool(const CameraPlan&)>& isMeant) const;
    /// A line for each difference between what was planned and what has become of it.
    QStringList surprisesOf(const Row& row) const;

private:
    void give(std::vector<Row>& rows) const;

    const HostContext& m_host;
};
