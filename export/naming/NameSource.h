#pragma once

#include "ZebTypes.h"

#include <QHash>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>

class QDateTime;

/// A document as names are composed from it. GUI thread; what asks the camera throws as `DOC_Interface` does.
class NamedDocument {
public:
    virtual ~NamedDocument() = default;

    virtual QString address() const = 0;
    /// Place of the device among all, from 0; that of the head in its device, from 1; how many of both there are.
    virtual int deviceNumber() const = 0;
    virtual int headNumber() const = 0;
    virtual int deviceCount() const = 0;
    virtual int headCount() const = 0;
    /// Path of the file that it was read from, empty for none.
    virtual QString sourceFile() const = 0;
    virtual QString originalName() const = 0;
    virtual bool isMemoryData() const = 0;
    /// Those that paths are composed for, in their order.
    virtual QList<PARTITIONNUMBER> partitions() const = 0;
    virtual QString partitionName(PARTITIONNUMBER partition) const = 0;
    /// Items as `DOC_Control::getCustomInfoList` has them.
    virtual QList<QVariantMap> customInfo() const = 0;
    /// As `DOC_Head::getFileNameDetails`.
    virtual zeb::FileNameDetails fileNameDetails(int type, PARTITIONNUMBER partition, int session,
                                                 const QDateTime& time) const = 0;
};

/// Host and disk as names are composed from them. A folder is listed once, so a source sees what was in it then; make
/// a new one where that may have changed. GUI thread.
class NameSource {
public:
    virtual ~NameSource() = default;

    /// The value of a preference; an invalid one stands for 0, false or the empty text.
    virtual QVariant pref(const QString& key) const = 0;
    virtual bool isFileMode() const = 0;
    virtual bool isMemoryMode() const = 0;
    /// As in `ZebSaver`; empty when there is none.
    virtual std::optional<QString> fixedGroupDir() const = 0;
    virtual std::optional<QString> substituteFolder() const = 0;
    virtual bool isFolderTaken(const QString& path) const = 0;
    virtual bool isPathTaken(const QString& path) const = 0;
    virtual void setLastGroupDir(const QString& name) = 0;
    virtual void setLastFolder(const QString& folder) = 0;
    virtual void setLastPath(const QString& path) = 0;
    /// Null when the camera is gone.
    virtual std::unique_ptr<NamedDocument> document(DOCKEY key) const = 0;

    virtual bool folderExists(const QString& path) const = 0;
    /// What is passed over, for it is there or taken: a directory by its path, or "900 more". A warning in the log.
    virtual void noteTaken(const QString& what) const;
    /// Names that one composition tries in vain before it gives up.
    virtual int mostRounds() const { return 1000000; }
    /// Whether the folder holds a file whose name begins so.
    bool hasFile(const QString& folder, const QString& beginning) const;

private:
    /// Names of what is no folder, hidden ones and links that lead nowhere too, in any order.
    virtual QStringList fileNames(const QString& folder) const = 0;

    /// Sorted.
    mutable QHash<QString, QStringList> m_listed;
};
