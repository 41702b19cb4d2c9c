#pragma once

#include "ZebTypes.h"

#include <QString>
#include <QStringList>

#include <optional>

/// What is kept with a document: the plug-ins that work on its images. GUI thread.
class DOC_Storage {
public:
    virtual ~DOC_Storage() = default;

    /// Plug-ins that the document can have, whether the host has them or not.
    virtual QStringList getPluginNames() const = 0;
    /// Whether the plug-in works on the images of the document now.
    virtual bool isPluginEffective(const QString& name, int head) const = 0;
    /// Has it work on them, or not.
    virtual void setPluginEffective(const QString& name, bool effective, int head) = 0;
    /// Of a document on a medium; nothing of any other. `partition` as `DOC_Interface::getPartitionList` has it.
    virtual std::optional<zeb::MediumData> getMediumData(PARTITIONNUMBER partition) const = 0;
    /// Whether its data can be given a name, and what gives it one; that may throw. `sequence` counts those of one name
    /// from 1, `isQuikDrive` tells the kind of medium.
    virtual bool canConvertDataName() const = 0;
    virtual void convertDataName(const QString& name, int sequence, bool isQuikDrive) = 0;
    /// Whether it can be compared with what was saved of it.
    virtual bool canSavedCheck() const = 0;
    /// Whether its file may go, and what deletes it; false when it did not go.
    virtual bool checkDeleteFile() const = 0;
    virtual bool deleteFile() = 0;
    /// Whether the document's images are shown through a curve of brightness.
    virtual bool isLutCurve() const = 0;
};
