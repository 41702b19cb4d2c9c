#pragma once

/// Saving of images. GUI thread; no question here throws.
class ZebSaver {
public:
    virtual ~ZebSaver() = default;

    virtual bool isSaving() const = 0;
    /// Saving in the background, while the user works on.
    virtual bool isBgSaving() const = 0;
    /// Converting of saved files in the background.
    virtual bool isBgConverting() const = 0;

    /// Puts the current image on the clipboard; `what` 2 the selected area of it.
    virtual void copyToClipboard(int what) = 0;
    /// Takes the present image: 1 into a file, 2 to the clipboard, 3 both; 4 opens the settings of that. May throw.
    virtual void snapShot(int mode) = 0;
};
