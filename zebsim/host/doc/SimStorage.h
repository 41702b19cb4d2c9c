#pragma once

#include "DOC_Storage.h"
#include "DocTopic.h"
#include "SimDocManager.h"

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
    std::optional<zeb::MediumData> getMediumData(PARTITIONNUMBER /*partition*/) const override {
        return onMedia().dataOf(ask(OPERATION("getMediumData")));
    }
    bool canConvertDataName() const override { return onMedia().isChangeable(ask(OPERATION("canConvertDataName"))); }
    void convertDataName(const QString& name, int sequence, bool isQuikDrive) override {
        onMedia().setName(change(OPERATION("DOC_Storage::convertDataName"), {name, sequence, isQuikDrive}), name,
                          sequence);
    }
    bool canSavedCheck() const override { return onMedia().dataOf(ask(OPERATION("canSavedCheck"))).has_value(); }
    bool checkDeleteFile() const override { return onMedia().isChangeable(ask(OPERATION("checkDeleteFile"))); }
    bool deleteFile() override { return onMedia().remove(change(OPERATION("DOC_Storage::deleteFile"), {})); }
    bool isLutCurve() const override { return ask(OPERATION("isLutCurve"), &CameraState::lutCurve); }

private:
    MediumDocs& onMedia() const { return m_host.docs.media().docs(); }
};
