#pragma once

#include <QString>

/// The host's dialog of preferences. GUI thread.
class ZebPrefsDialog {
public:
    virtual ~ZebPrefsDialog() = default;

    /// The page to open at, by its translated name; an empty or unknown name leaves the choice to the dialog.
    virtual void setPage(const QString& page) = 0;
    /// Runs an event loop until it is closed; a `QDialog::DialogCode`.
    virtual int exec() = 0;
};
