#pragma once

#include "CameraModel.h"

#include <QHash>

#include <memory>

class JsonNode;

/// Camera models by name.
class ModelCatalogue {
public:
    /// The models that ship.
    static const ModelCatalogue& shipped();

    /// Adds the models of a file; those of a name that is there already take its place. Throws `JsonError`.
    void addFile(const QString& path);
    /// Null when there is none.
    std::shared_ptr<const CameraModel> find(const QString& name) const { return m_models.value(name); }

    /// What a head starts with: its model's start, and the members of `node`. Throws `JsonError`.
    static CameraState readState(const JsonNode& node, const CameraModel& model);

private:
    QHash<QString, std::shared_ptr<const CameraModel>> m_models;
};
