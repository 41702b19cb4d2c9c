#pragma once

#include "NameSource.h"

class DOC_Interface;

/// A document of the host.
class HostNamedDocument : public NamedDocument {
public:
    /// `document` is not owned; it is good for as long as the reference is, as `ZebHost` tells.
    explicit HostNamedDocument(DOC_Interface& document) : m_document(document) {}

    QString address() const override;
    int deviceNumber() const override;
    int headNumber() const override;
    int deviceCount() const override;
    int headCount() const override;
    QString sourceFile() const override;
    QString originalName() const override;
    bool isMemoryData() const override;
    QList<PARTITIONNUMBER> partitions() const override;
    QString partitionName(PARTITIONNUMBER partition) const override;
    QList<QVariantMap> customInfo() const override;
    zeb::FileNameDetails fileNameDetails(int type, PARTITIONNUMBER partition, int session,
                                         const QDateTime& time) const override;

private:
    DOC_Interface& m_document;
};
