#pragma once

#include "ActionResult.h"
#include "AllowedValues.h"
#include "CameraGroup.h"
#include "PageRecords.h"
#include "RecordAreas.h"
#include "SyncState.h"
#include "ZebTypes.h"

#include <QElapsedTimer>
#include <QList>
#include <QString>

#include <optional>

/// All connected cameras record, whatever is selected. The table sets it while it is open.
inline const QString RecAllConnectedPref = QStringLiteral("recording/RecAllConnectedCamera");

/// What the table remembers between two calls of its page. Cameras are not part of it: they are asked each time.
struct TableState {
    /// The document behind the batch row.
    DOCKEY batchDocKey = zeb::NoDocKey;
    /// The one that stood there and can't be read; it comes back when it can.
    DOCKEY unreadBatchDocKey = zeb::NoDocKey;
    /// Of the last list of records; `UnreadGroup` until there was one.
    QString group = QLatin1String(UnreadGroup);
    int filter = 0;
    /// What the page has of the records.
    PageRecords page;
    QList<CameraGroup> groups;
    AllowedValues allowed;
    SyncState sync;
    RecordAreas areas;
    /// What the last change of many cameras came to, and what the last search found, in the user's language.
    std::optional<ActionResult> result;
    QString lastSearch;
    /// Runs while the host records.
    QElapsedTimer recording;
    /// A recording that the table follows is under way.
    bool recordRunning = false;
    /// Settings of the cameras are being loaded from a file.
    bool loadingRigx = false;
    /// The preference `recording/RecAllConnectedCamera` as it was before the table opened.
    std::optional<bool> savedRecAllConnected;
};
