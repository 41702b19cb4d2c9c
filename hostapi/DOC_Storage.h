#pragma once

#include <QString>
#include <QStringList>

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
    /// Whether the document's images are shown through a curve of brightness.
    virtual bool isLutCurve() const = 0;
};
