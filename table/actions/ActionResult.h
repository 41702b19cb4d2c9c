#pragma once

#include "ZebTypes.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// What a change of many cameras has come to, as the page shows it.
class ActionResult {
public:
    struct Row {
        DOCKEY key = zeb::NoDocKey;
        QString name;
        /// What it was to become, and what it answers afterwards, in the user's language.
        QString asked;
        QString got;
        /// "set", "clamped", "locked", "refused", "gone" or "unanswered".
        QString verdict;
        /// In the user's language; empty when there is nothing to say.
        QString reason;
    };

    /// `action` as "frameRate", see `CameraAction`.
    ActionResult(const QString& action, const QVector<Row>& rows);

    const QString& action() const { return m_action; }
    /// `action`, `ok` when all of it has come about, and `rows` by the names of their members; written once, for the
    /// page asks for it at each tick.
    const QByteArray& json() const { return m_json; }
    /// A line of the log for each row that is not as asked.
    void log() const;

private:
    QString m_action;
    QVector<Row> m_rows;
    QByteArray m_json;
};
