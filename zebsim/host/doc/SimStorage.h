#pragma once

#include "DOC_Storage.h"

class Camera;

/// Image plug-ins of a document, and the curve of its images.
class SimStorage : public DOC_Storage {
public:
    explicit SimStorage(Camera& camera) : m_camera(camera) {}

    QStringList getPluginNames() const override;
    bool isPluginEffective(const QString& name, int head) const override;
    bool isLutCurve() const override;

private:
    Camera& m_camera;
};
