#pragma once

#include "AllowedValues.h"
#include "CameraGroup.h"
#include "RecordAreas.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class ZebHost;

/// What the default settings say of the table as a whole.
struct TableDefaults {
    /// Reads the preferences; a list that is switched off there is empty.
    static TableDefaults read(const ZebHost& host);

    QList<CameraGroup> groups;
    /// Hertz of the external sync signal; nothing when the settings do not tell it.
    std::optional<int> syncFrequency;
    /// Frequencies on offer, decimal texts.
    QStringList syncSignals;
    AllowedValues allowed;
    RecordAreas areas;
};

/// The forms in which the preferences keep lists: entries joined by ":", the parts of an entry by "|". An entry that
/// lacks a part, or has none for a number, is left out.
namespace defaultsettings {

/// Those that are numbers above 0.
QStringList readNumbers(const QString& text);
/// Of each entry the name, then the addresses.
QList<CameraGroup> readGroups(const QString& text);
/// Of each entry width and height.
QStringList readResolutions(const QString& text);
/// Of each entry rate, start and end; a later entry of the same rate replaces an earlier one.
RecordAreas readAreas(const QString& text);

}  // namespace defaultsettings
