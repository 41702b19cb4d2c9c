#pragma once

#include <QDateTime>
#include <QString>

/// Names of saved files. Pure.
///
/// What of a camera's name can stand in a file's, on every system: forbidden letters become '_'. Never empty.
QString fileNameOf(const QString& name);
/// A folder for one save, called by its time: in `folder`, or beside it when that was made for a save itself.
QString newSubfolder(const QString& folder, const QDateTime& time);
/// A frame number with at least five digits, as "-00512".
QString frameNumberText(qint64 number);
