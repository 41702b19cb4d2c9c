#pragma once

#include "CameraGroup.h"
#include "ZebTypes.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// Values to which the default settings limit what a camera offers; an empty list limits nothing.
struct AllowedValues {
    /// Decimal texts.
    QStringList frameRates;
    QStringList shutterSpeeds;
    /// Texts as "1280 x 800".
    QStringList resolutions;
};

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
    /// A recording that the table follows is under way.
    bool recordRunning = false;
    /// The preference `recording/RecAllConnectedCamera` as it was before the table opened.
    std::optional<bool> savedRecAllConnected;
};
