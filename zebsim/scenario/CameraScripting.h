#pragma once

#include <QJSValue>
#include <QString>
#include <QVariant>

class Camera;
class SimHost;

/// The cameras as a scenario sees them. Every operation throws `ScenarioError` in words for its author.
class CameraScripting {
public:
    /// `folder` is where rig files named by a relative path are looked for first.
    CameraScripting(SimHost& host, const QString& folder);

    /// A number: so many cameras of the standard model. A text: a rig file, or the name of one that ships.
    void rig(const QJSValue& pathOrCount);
    QVariantList keys() const;
    /// Invalid when the camera is gone.
    QVariant camera(unsigned int key) const;
    void setCamera(unsigned int key, const QVariantMap& members);
    void reboot(unsigned int key);

private:
    Camera& there(unsigned int key) const;

    SimHost& m_host;
    QString m_folder;
};
