#pragma once

#include <QStringList>

/// Values to which the default settings limit what a camera offers; an empty list limits nothing.
struct AllowedValues {
    /// Decimal texts.
    QStringList frameRates;
    QStringList shutterSpeeds;
    /// Texts as "1280 x 800".
    QStringList resolutions;
};
