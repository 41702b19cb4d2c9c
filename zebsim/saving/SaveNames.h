#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

/// Names of saved files. Pure.
///
/// What of a camera's name can stand in a file's, on every system: forbidden letters become '_'. Never empty.
QString fileNameOf(const QString& name);
/// The same for several, each another, also where the case of letters does not count: a later one of a name gets a
/// number.
QStringList distinctFileNames(const QStringList& names);
/// A folder for one save, called by its time: in `folder`, or beside it when that was made for a save itself.
QString newSubfolder(const QString& folder, const QDateTime& time);
/// A frame number with at least five digits, as "-00512".
QString frameNumberText(qint64 number);
