#pragma once

#include <QList>
#include <QString>
#include <QVariant>

/// An option of saving: a preference of each family that has it. A family is what its keys begin with: "export/" for
/// images of cameras, "convert/" for those that are converted, "snap/" for snapshots, "report/" for reports, and
/// "layout/" for images side by side. Pure.
struct SaveOption {
    /// Letters of the families: E, C, S, R, L.
    const char* families;
    /// What stands behind the family in a key.
    QString suffix;
    /// What it is until somebody changes it. Invalid where that follows from other options.
    QVariant value;
};

/// All options, each once.
const QList<SaveOption>& saveOptions();

/// A key of one family, and what it is until somebody changes it; invalid as above.
struct SaveOptionKey {
    QString key;
    QVariant value;
};

/// Those of all options in all their families.
QList<SaveOptionKey> saveOptionKeys();
