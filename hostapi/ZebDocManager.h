#pragma once

#include "ZebTypes.h"

#include <QMutex>

class QObject;
class ZebMedia;

/// The camera documents of the host. GUI thread.
///
/// Lists of keys are in the order in which the host shows its cameras. A key whose camera is gone is taken by
/// every operation and has no effect. `mode`, `order` and `kind` are the host's and called with 0, but with 1 in
/// `getDoc`, `setCurrentDoc`, `isConflictPartition`, `refreshDocList` and `toolBegin`.
class ZebDocManager {
public:
    virtual ~ZebDocManager() = default;

    /// The document, or null when the camera is gone. Do not throw.
    virtual DOC_Interface* getDoc(DOCKEY key, int mode) = 0;
    /// As `getDoc`, for a document in any state.
    virtual DOC_Interface* getDocAny(DOCKEY key) = 0;
    /// The document that the user works on; null without one.
    virtual DOC_Interface* getCurrentDoc() = 0;
    virtual bool isCurrentDoc(DOCKEY key) const = 0;
    /// Its key; `zeb::NoDocKey` without one.
    virtual DOCKEY getCurrentDockey(int mode) const = 0;
    virtual void setCurrentDoc(DOCKEY key, int mode) = 0;

    /// `mode` 0 or 1, the same list.
    virtual DocKeyList getDocKeys(int mode = 0) const = 0;
    virtual DocKeyList getConnectedDocKeys(int mode = 0) const = 0;
    /// Cameras of the live view, connected or not.
    virtual DocKeyList getLiveDocKeys(int mode, int order) const = 0;
    /// The documents that are cameras, not media or files.
    virtual DocList getCameraDocs() = 0;
    /// Those of them that a common signal can reach now.
    virtual DocList getSyncableDocs(int mode) = 0;
    virtual int getDocCount() const = 0;
    virtual int getSelectedDocCount() const = 0;

    virtual void selectDoc(DOCKEY key) = 0;
    virtual void deselectDoc(DOCKEY key) = 0;
    virtual DocKeyList getSelectedDocKeys(int mode) const = 0;
    /// Selects these and no others.
    virtual void setSelectedDocs(const DocKeyList& keys, int mode) = 0;
    /// Selects all. `sender` asks for it; may be null.
    virtual void selectAllDocs(QObject* sender) = 0;

    /// Connect and disconnect cameras, side by side; back when all have answered or failed. Failures are shown by the
    /// host. Like `ZebCameraOps` they may run an event loop.
    virtual void connectDocs(const DocKeyList& keys) = 0;
    virtual void disconnectDocs(const DocKeyList& keys) = 0;
    /// The same of one camera, which a preset takes away. `mode` is 0.
    virtual void disconnectDoc(DOCKEY key, int mode) = 0;
    /// Forgets all cameras; a search finds them again.
    virtual void deleteAllDocs(int kind, int mode) = 0;
    /// The host's own dialog for a camera; runs an event loop until it is closed.
    virtual void editDoc(DOCKEY key) = 0;

    /// Whether a change of the named parameter on `doc` would reach a locked head of the same device.
    /// Both flags false: a parameter that is neither shutter nor resolution.
    virtual bool sharesDeviceWithLockedHead(DOC_Interface* doc, bool shutter, bool resolution) = 0;

    /// Keys of the temporary save list: what is to be saved from media, beside the selection.
    virtual DocKeyList getTemporarySaveDocKeys() const = 0;

    /// SD cards in readers of this machine: a bit for the letter of each drive, A the lowest. One is open at a time,
    /// its recordings are documents then; false, and `drive` as it was, when none is. `prepareDrive` comes before
    /// opening, with `zeb::SdDriveKind`; both may throw.
    virtual unsigned int getSdDriveMask() const = 0;
    virtual bool getOpenSdDrive(int& drive) const = 0;
    virtual void prepareDrive(int kind) = 0;
    virtual void openSdDrive(int drive) = 0;
    virtual void closeSdDrive() = 0;
    /// The other media. Does not throw.
    virtual ZebMedia& media() = 0;

    /// States of the documents together.
    virtual bool hasWaveformData() const = 0;
    /// Whether measured signals are taken beside the images.
    virtual bool isWaveDataAcquisition() const = 0;
    /// Whether the cameras stand at memory partitions that do not go together.
    virtual bool isConflictPartition(int mode) const = 0;
    /// Whether the cameras' clocks are being put into step.
    virtual bool isPhaseAdjusting() const = 0;
    /// Whether a recording keeps only the area that is set on each document.
    virtual bool isRecordAreaEnabled() const = 0;

    /// The mutex of document work; never null, not recursive. Does not throw.
    virtual QMutex* getDocMutex() = 0;
    /// Bracket of a change that restarts the live loop: it begins, those who show images hear of it, it ends, and what
    /// has changed takes effect.
    virtual void beginDocEdit() = 0;
    virtual void beginDocEditNotify() = 0;
    virtual void endDocEdit() = 0;
    virtual void commitDocEdit() = 0;

    /// Settings of cameras in a file of the host's own form. Both throw with a text that names the file. Loading shows
    /// what it will do and asks the user: it runs event loops, cameras may go in them, and one that the user leaves
    /// alone is no failure. Saving takes all connected cameras, replaces the file whole, and may be called on any
    /// thread.
    virtual void loadSettingsFile(const QString& path, int mode, int reserved) = 0;
    virtual void saveSettingsFile(const QString& path, int mode) = 0;

    /// Shows the list of documents anew.
    virtual void refreshDocList(int mode) = 0;

    /// Image tools, by the name of their plug-in.
    /// A quick tool works while its button is down, one of them at a time is the active one; "" for none.
    virtual void setQuickTool(const QString& tool, bool on) = 0;
    virtual void setActiveQuickTool(const QString& tool) = 0;
    /// The tool takes the current document in or leaves it out; `all`: every document.
    virtual void toolSelect(const QString& tool, bool on) = 0;
    virtual void toolSelectAll(const QString& tool, bool all, bool on) = 0;
    /// What the tool has made is kept, is thrown away, or is shown as it would be.
    virtual void toolBegin(int mode, const QString& tool) = 0;
    virtual void toolEnd(const QString& tool) = 0;
    virtual void toolApply(const QString& tool) = 0;
};
