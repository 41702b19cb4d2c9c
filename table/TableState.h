#pragma once

#include "DefaultSettings.h"
#include "ZebTypes.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// What the table remembers between two calls of its page. Cameras are not part of it: they are asked each time.
struct TableState {
    /// The document behind the batch row.
    DOCKEY batchDocKey = zeb::NoDocKey;
    /// Of the last list of records; `UnreadGroup` until there was one.
    QString group = QLatin1String(UnreadGroup);
    int filter = 0;
    QList<CameraGroup> groups;
    AllowedValues allowed;
    /// Hertz of the external sync signal; 0 or below when there is none.
    int syncFrequency = 0;
    /// Frequencies of that signal on offer, decimal texts.
    QStringList syncSignals;
    RecordAreas areas;
    /// A recording that the table follows is under way.
    bool recordRunning = false;
    /// Settings of the cameras are being loaded from a file.
    bool loadingRigx = false;
    /// The preference `recording/RecAllConnectedCamera` as it was before the table opened.
    std::optional<bool> savedRecAllConnected;
};
