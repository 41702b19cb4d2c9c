#pragma once

#include "CameraError.h"
#include "DOC_Storage.h"
#include "DocTopic.h"
#include "TextKey.h"

/// Image plug-ins of a document, and the curve of its images.
class SimStorage : public DocTopic<DOC_Storage> {
public:
    using DocTopic::DocTopic;

    QStringList getPluginNames() const override {
        return askConnected(OPERATION("getPluginNames"), &CameraState::plugins);
    }
    bool isPluginEffective(const QString& name, int /*head*/) const override {
        return askConnected(OPERATION("isPluginEffective"), &CameraState::effectivePlugins).contains(name);
    }
    void setPluginEffective(const QString& name, bool effective, int head) override {
        changeConnected(OPERATION("DOC_Storage::setPluginEffective"), {name, effective, head})
            .setPluginEffective(name, effective);
    }
    /// Every document is a camera's: it is on no medium, and has no file.
    std::optional<zeb::MediumData> getMediumData(PARTITIONNUMBER /*partition*/) const override {
        ask(OPERATION("getMediumData"));
        return std::nullopt;
    }
    bool canConvertDataName() const override { return isOnMedium(OPERATION("canConvertDataName")); }
    void convertDataName(const QString& name, int sequence, bool isQuikDrive) override {
        change(OPERATION("DOC_Storage::convertDataName"), {name, sequence, isQuikDrive});
        throw CameraError(m_camera.name(), TextKey("it is on no medium"));
    }
    bool canSavedCheck() const override { return isOnMedium(OPERATION("canSavedCheck")); }
    bool checkDeleteFile() const override { return isOnMedium(OPERATION("checkDeleteFile")); }
    bool deleteFile() override {
        change(OPERATION("DOC_Storage::deleteFile"), {});
        return false;
    }
    bool isLutCurve() const override { return ask(OPERATION("isLutCurve"), &CameraState::lutCurve); }

private:
    bool isOnMedium(CameraOperation operation) const {
        ask(operation);
        return false;
    }
};
