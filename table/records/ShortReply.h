#pragma once

#include "PageRecords.h"

#include <QHash>
#include <QPair>
#include <QString>

class Record;

/// A list of records that leaves out what the page has already: rows that are the same as those in their places, and
/// lists that were told once.
///
/// JSON with `reply`, its number; `since`, the number of the one that it completes, 0 when it is whole; `count`, the
/// number of rows; `changed`, those that differ, whose `recid` tells the place; `lists`, by number, those that are new;
/// `batch` as in a plain list, left out when it is the same.
class ShortReply {
public:
    /// `taken`: the number of the reply that the page says it has. What is not known of it is told again.
    ShortReply(PageRecords& page, int taken);

    void add(const Record& row);
    void setBatch(const Record& row);
    /// To be called once, at the end. From here on this is what was told last.
    QString finish();

private:
    /// Writes the row into `m_row`, which keeps its room from one to the next.
    void shorten(const Record& row);
    const QString& numberOf(const QString& list);

    PageRecords& m_page;
    /// What the page had at the request; another one may come before this is finished.
    ToldRecords m_known;
    ToldRecords m_reply;
    QString m_row;
    QString m_changed;
    QString m_newLists;
    /// Lists and their numbers by where they stand in memory, which spares most of the comparing; they keep their
    /// place as long as they are held.
    QHash<const QChar*, QPair<QString, QString>> m_places;
};
