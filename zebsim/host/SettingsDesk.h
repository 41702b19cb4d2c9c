#pragma once

#include <QString>

struct HostContext;
struct LoadPlan;

/// Loads camera settings from files.
class SettingsDesk {
public:
    explicit SettingsDesk(const HostContext& host) : m_host(host) {}

    /// Shows what it would do, and does it when the user agrees. Cameras are left as they are that are disconnected,
    /// locked, armed, record or are not in the file. What becomes of the others otherwise than was shown is told. GUI
    /// thread; event loops run. Throws `JsonError` before anything is done.
    void load(const QString& path) const;

private:
    bool agrees(const QString& path, const LoadPlan& plan) const;
    void tellNothingToDo(const QString& path, const LoadPlan& plan) const;
    /// `plan` is what holds by now of what was `shown`.
    void carryOut(const QString& path, const LoadPlan& plan, const LoadPlan& shown) const;

    const HostContext& m_host;
};
