#pragma once

#include "CameraBank.h"
#include "HeadSettings.h"

#include <QObject>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

struct HostContext;

/// Saves camera settings to files. Lives on the GUI thread.
class SettingsSave {
public:
    explicit SettingsSave(const HostContext& host) : m_host(host) {}

    /// Writes the settings of all connected cameras. A notice names those that do not answer, or with what no file may
    /// hold, and the file has the others. Throws, with the file's name, when there are none of them or it can't be
    /// written. Any thread.
    void run(const QString& path);

private:
    /// A camera that is not in the file, and why.
    using LeftOut = std::vector<std::pair<std::shared_ptr<Camera>, QString>>;

    QList<HeadSettings> read(const HeldCameras& cameras, LeftOut& leftOut) const;
    void tellLeftOut(const QString& path, const LeftOut& leftOut);

    const HostContext& m_host;
    /// What there is to tell is delivered to it, on the GUI thread.
    QObject m_receiver;
};
