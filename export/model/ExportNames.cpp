#include "ExportNames.h"

#include "NameFamilies.h"
#include "NameSource.h"

ExportNames::ExportNames(const NameSource& source, int type, std::unique_ptr<NamedDocument> document,
                         PARTITIONNUMBER partition, const QDateTime& time)
    : m_source(source), m_type(type), m_document(std::move(document)), m_partition(partition), m_time(time) {}

ExportNames::~ExportNames() = default;

QString ExportNames::root() const {
    return rootFolder(m_source, m_type, m_document.get());
}

QString ExportNames::file(bool withDetails) const {
    return fileName(m_source, m_type, m_document.get(), m_partition, withDetails, m_time);
}

/// What a directory is called that goes by its files.
QString ExportNames::nameFor(const char* directory) const {
    const QString key = nameFamily(m_type) % QLatin1String(directory) % QStringLiteral("asfilenameincludeoption");
    return file(m_source.pref(key).toBool());
}

QString ExportNames::groupDir() const {
    return ::groupDir(m_source, m_type, m_document.get(), nameFor("groupdir"), m_time);
}

QString ExportNames::subDir() const {
    return ::subDir(m_source, m_type, m_document.get(), nameFor("subdir"), m_time);
}

QString ExportNames::folder() const {
    QString folder = root();
    for (const QString& directory : {groupDir(), subDir()}) {
        folder += directory.isEmpty() ? QString() : QString(directory % QLatin1Char('/'));
    }
    return folder;
}
