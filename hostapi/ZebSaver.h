#pragma once

#include <QString>

/// Saving of images. GUI thread; no question here throws.
class ZebSaver {
public:
    virtual ~ZebSaver() = default;

    /// While names are composed: the one name that the group directory of every camera has, and the folder that files
    /// go to in the place of their own. False, and `out` as it was, when there is none.
    virtual bool getFixedGroupDir(QString& out) const = 0;
    virtual bool getSubstituteFolder(QString& out) const = 0;
    /// What was composed last: the name of a group directory, a folder that ends in '/', the path of a file without
    /// what its name ends in.
    virtual void setLastGroupDir(const QString& name) = 0;
    virtual void setLastFolder(const QString& folder) = 0;
    virtual void setLastPath(const QString& path) = 0;
    /// Forgets those.
    virtual void resetNameState() = 0;
    /// Whether another save has promised to write into a new folder of that path; and whether it, or an earlier target
    /// of this one, has promised that file, without what its name ends in.
    virtual bool isFolderTaken(const QString& path) const = 0;
    virtual bool isPathTaken(const QString& path) const = 0;

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
