#pragma once

#include "ZebTypes.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

/// What a change of many cameras has come to, as the page shows it.
struct ActionResult {
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

    /// As "frameRate", see `CameraAction`.
    QString action;
    QVector<Row> rows;

    /// All of it has come about.
    bool isOk() const;
    QJsonObject toJson() const;
    /// A line of the log for each row that is not as asked.
    void log() const;
};
