#pragma once

#include "ZebTypes.h"

#include <QMap>
#include <QString>

class NameSource;
class NamedDocument;
class QDateTime;

/// Where the files of a document go, by its partitions: the name of the group directory where there is one, that of the
/// directory in it, empty for none, the folder with "/" at its end, and the path, to which a job adds what its files
/// end in.
struct TargetPaths {
    QMap<PARTITIONNUMBER, QString> groups;
    QMap<PARTITIONNUMBER, QString> subs;
    QMap<PARTITIONNUMBER, QString> folders;
    QMap<PARTITIONNUMBER, QString> paths;
};

/// For all of these: `type` is a `zeb::FileType` and tells the preferences, as `nameFamily` has it; `document` may be
/// null; `time` stands in names that hold one. Preferences and texts of the document are taken as they are, but where
/// a text is no name of a folder or file by itself (custom information, names of partitions, details of the host) its
/// forbidden characters become "_". A number that counts sessions is the first that nobody has used; when a million are
/// used, or two give one name, they throw `UTL_Exception` with "Invalid filename.". GUI thread.

/// Puts the paths of all partitions into `out`. A document has one path in a layout, and under partition 1 there is one
/// without a document. Of a `zeb::ReportFile` with `mode` 1 names have round brackets for square ones. With
/// `replaceRoot` files go to the source's substitute folder if there is one. Throws `UTL_Exception` when a name is
/// empty that must not be or a path is too long; `out` then holds what was composed before.
void composeTargets(NameSource& source, int type, const NamedDocument* document, bool replaceRoot,
                    const QDateTime& time, int mode, TargetPaths& out);

/// The folder below which everything of the type goes, with "/" at its end unless it is empty.
QString rootFolder(const NameSource& source, int type, const NamedDocument* document);
/// Name of a file without folder and ending; `withDetails` false: of that only what the user has chosen as the name.
QString fileName(const NameSource& source, int type, const NamedDocument* document, PARTITIONNUMBER partition,
                 bool withDetails, const QDateTime& time);
/// Names of the directories of a file called `name`, one in the other; empty for none.
QString groupDir(const NameSource& source, int type, const NamedDocument* document, const QString& name,
                 const QDateTime& time);
QString subDir(const NameSource& source, int type, const NamedDocument* document, const QString& name,
               const QDateTime& time);
