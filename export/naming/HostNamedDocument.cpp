#include "HostNamedDocument.h"

#include "DOC_Control.h"
#include "DOC_Head.h"
#include "DOC_Interface.h"

QString HostNamedDocument::address() const {
    return m_document.control().getAddress(1);
}

int HostNamedDocument::deviceNumber() const {
    return m_document.control().getDeviceNumber();
}

int HostNamedDocument::headNumber() const {
    return m_document.control().getHeadNumber();
}

int HostNamedDocument::deviceCount() const {
    return m_document.head().getDeviceCount();
}

int HostNamedDocument::headCount() const {
    return m_document.getHeadCount();
}

QString HostNamedDocument::sourceFile() const {
    return m_document.getSourceFilePath();
}

QString HostNamedDocument::originalName() const {
    return m_document.getOriginalName();
}

bool HostNamedDocument::isMemoryData() const {
    return m_document.isMemoryData();
}

QList<PARTITIONNUMBER> HostNamedDocument::partitions() const {
    return m_document.getPartitionList();
}

QString HostNamedDocument::partitionName(PARTITIONNUMBER partition) const {
    return m_document.getPartitionName(partition);
}

QList<QVariantMap> HostNamedDocument::customInfo() const {
    return m_document.control().getCustomInfoList();
}

zeb::FileNameDetails HostNamedDocument::fileNameDetails(int type, PARTITIONNUMBER partition, int session,
                                                        const QDateTime& time) const {
    return m_document.head().getFileNameDetails(type, partition, session, time);
}
