#pragma once

#include "DOC_Storage.h"
#include "DocTopic.h"

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
    bool isLutCurve() const override { return ask(OPERATION("isLutCurve"), &CameraState::lutCurve); }
};
