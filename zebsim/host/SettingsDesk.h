#pragma once

#include "HeadSettings.h"
#include "LoadPlan.h"
#include "SettingsLoad.h"

#include <QObject>
#include <QStringList>

#include <map>
#include <vector>

class Camera;
struct HostContext;

/// Camera settings that go into files and come from them.
class SettingsDesk {
public:
    explicit SettingsDesk(const HostContext& host) : m_host(host) {}

    /// Shows what it would do, and does it when the user agrees. Cameras are left as they are that are disconnected,
    /// locked, armed, record or are not in the file. What becomes of the others otherwise than was shown is told. GUI
    /// thread; event loops run. Throws `JsonError` before anything is done.
    void load(const QString& path);
    /// Writes the settings of all connected cameras. A notice names those that do not answer, or with what no file may
    /// hold, and the file has the others. Throws, with the file's name, when there are none of them or it can't be
    /// written. Any thread.
    void save(const QString& path);

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
    void tellLeftOut(const QString& path, const QStringList& reasons);

    const HostContext& m_host;
    /// What other threads tell waits for it.
    QObject m_turn;
};
