#pragma once

#include <QHash>
#include <QString>
#include <QVector>

/// A list of records as it was told to the page, by a number of its own.
struct ToldRecords {
    /// 0: nothing was told.
    int number = 0;
    /// JSON of the rows in their order, with the numbers of lists in place of these, and of the batch row.
    QVector<QString> rows;
    QString batch;
    /// JSON of a list -> the number by which the page knows it, as text.
    QHash<QString, QString> lists;
};

/// What was told last, which may not have arrived, and what the page is known to have.
struct PageRecords {
    ToldRecords told;
    ToldRecords taken;
};
