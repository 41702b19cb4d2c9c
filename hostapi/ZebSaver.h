#pragma once

/// Saving of recorded images. GUI thread; nothing here throws.
class ZebSaver {
public:
    virtual ~ZebSaver() = default;

    virtual bool isSaving() const = 0;
    /// Saving in the background, while the user works on.
    virtual bool isBgSaving() const = 0;
    /// Converting of saved files in the background.
    virtual bool isBgConverting() const = 0;
};
