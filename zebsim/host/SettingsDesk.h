#pragma once

#include "HeadSettings.h"
#include "LoadPlan.h"
#include "SettingsLoad.h"

#include <QStringList>

#include <memory>
#include <vector>

class Camera;
struct HostContext;

/// Loads camera settings from files.
class SettingsDesk {
public:
    explicit SettingsDesk(const HostContext& host) : m_host(host) {}

    /// Shows what it would do, and does it when the user agrees. Cameras are left as they are that are disconnected,
    /// locked, armed, record or are not in the file. What becomes of the others otherwise than was shown is told. GUI
    /// thread; event loops run. Throws `JsonError` before anything is done.
    void load(const QString& path) const;

private:
    /// What a camera was to become, and what it has answered.
    struct Row {
        const CameraPlan* plan;
        std::shared_ptr<Camera> camera;
        LoadAnswer answer;
        /// It was never asked, with the reason in the user's language.
        QString leftOut;
    };

    LoadPlan plan(const QList<HeadSettings>& file) const;
    bool agrees(const QString& path, const LoadPlan& plan) const;
    void tellNothingToDo(const QString& path, const LoadPlan& plan) const;
    /// `plan` is what holds by now of what was `shown`.
    void carryOut(const QString& path, const LoadPlan& plan, const LoadPlan& shown) const;
    std::vector<Row> rowsOf(const LoadPlan& plan, const LoadPlan& shown) const;
    void give(std::vector<Row>& rows) const;
    QStringList surprisesOf(const Row& row) const;

    const HostContext& m_host;
};
