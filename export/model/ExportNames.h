#pragma once

#include "TargetPaths.h"

#include <QDateTime>

#include <memory>

/// Parts of the path of one partition's files. GUI thread; asks the camera and throws as `TargetPaths.h` tells.
class ExportNames {
public:
    /// `type` is a `zeb::FileType`. `source` must outlive the object; without a document names hold nothing of any.
    ExportNames(const NameSource& source, int type, std::unique_ptr<NamedDocument> document, PARTITIONNUMBER partition,
                const QDateTime& time);
    ~ExportNames();

    QString root() const;
    QString file(bool withDetails) const;
    QString groupDir() const;
    QString subDir() const;
    /// With "/" at its end, unless it is empty.
    QString folder() const;

private:
    QString nameFor(const char* directory) const;

    const NameSource& m_source;
    const int m_type;
    const std::unique_ptr<NamedDocument> m_document;
    const PARTITIONNUMBER m_partition;
    const QDateTime m_time;
};
