#pragma once

#include "CustomInfoDialect.h"

#include <QList>
#include <QString>
#include <QVariantMap>

/// Files of custom information. Any thread.
class UTL_Converter {
public:
    /// Codes of the exceptions: the file could not be opened, or what came afterwards.
    enum Failure { NotOpened = 1, NotDone = 2 };

    /// Puts the items of the file into `list`. Throws `UTL_Exception`, with path and reason, when the file can't be
    /// read or holds no item; `list` is as it was then, and the log has the place in the file.
    static void xml2CustomInfo(const QString& path, QList<QVariantMap>& list,
                               const CustomInfoDialect& dialect = TableDialect);

    /// Writes the items as a whole file or not at all. Throws `UTL_Exception`, with path and reason, when that can't
    /// be.
    static void customInfo2xml(const QList<QVariantMap>& list, const QString& path, const QString& version,
                               const CustomInfoDialect& dialect = TableDialect);
};
