#pragma once

#include "Recording.h"
#include "ZebTypes.h"

#include <QImage>
#include <QRect>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class ParallelRows;
class QDateTime;
class QFutureWatcherBase;
class ZebPrefsDialog;
struct ZebSupportFile;

/// The application's own windows, as the host reaches them. These are the ones of a host without an application:
/// nothing happens. GUI thread.
class HostWindows {
public:
    using PasswordTest = std::function<bool(const QString& password)>;

    virtual ~HostWindows() = default;

    /// The dialog of preferences; null without an application.
    virtual ZebPrefsDialog* prefsDialog() { return nullptr; }
    /// Each runs until the user has closed it.
    virtual void openEthernetSettings() {}
    virtual void openAbout() {}
    /// Name and comment of a camera that is there.
    virtual void editCamera(DOCKEY /*key*/) {}
    /// A modal progress with `text` until `watcher` has finished; nothing cancels it. Without an application it only
    /// waits.
    virtual void runProgress(const QString& text, QFutureWatcherBase& watcher);
    /// Waits for a command to cameras of these names, a row for each, and tells who has not answered. The user may
    /// leave out those that have not got it. Without an application it only waits.
    virtual void waitForRows(ParallelRows& rows, const QStringList& names);

    /// Asks what is to be saved of the recordings and where, each camera for itself or all in one picture, and begins.
    virtual void save(bool /*layout*/) {}
    /// The same of the recordings of these documents alone, each for itself.
    virtual void importRecordings(const DocKeyList& /*keys*/) {}
    virtual bool isSaving() const { return false; }
    /// Files are being converted, before the user or in the background.
    virtual bool isConverting() const { return false; }
    /// As `ZebSaver::snapShot`.
    virtual void snapShot(int /*mode*/) {}

    /// The form of a time code, and what a saved picture tells of these cameras; false when the user has given up.
    virtual bool openTimeCode() { return false; }
    virtual bool openSaveInfo(const DocKeyList& /*keys*/) { return false; }
    /// Asks for the password of a medium of that name until one `fits`; false when the user has given up.
    virtual bool askPassword(const QString& /*medium*/, const PasswordTest& /*fits*/) { return false; }
    /// Asks for a new one, empty for none, and for the old one where `fits` is there. Nothing when the user has given
    /// up.
    virtual std::optional<QString> askNewPassword(const QString& /*medium*/, const PasswordTest& /*fits*/) {
        return std::nullopt;
    }

    /// Number of the recorded frame of a camera that is shown.
    virtual int shownFrame(DOCKEY /*key*/, const Recording& recording) const { return recording.selectedFirst; }
    /// What files of a `zeb::FileType` with the recording of that partition are called, without number and ending.
    virtual QString fileName(int /*type*/, DOCKEY /*key*/, PARTITIONNUMBER /*partition*/,
                             const QDateTime& /*time*/) const {
        return {};
    }
    /// The image in front as it is shown; a null image without one.
    virtual QImage currentImage() const { return {}; }
    /// Adds what only the application knows: its log, pictures of its windows and of its plug-ins' dialogs.
    virtual void addToSupportFile(ZebSupportFile& /*file*/) const {}

    /// The floating lists beside a control of the viewer's page, by key: "partition", "variable", "variableRegist". An
    /// unknown key is ignored.
    virtual void showDropDownBox(const QString& /*key*/, const QRect& /*anchor*/) {}
    /// Without a key all of them.
    virtual void hideDropDownBox(const QString& /*key*/) {}
    virtual bool isDropDownBoxShown() const { return false; }
    /// Where the list of that key stands, in the pixels of the page; a null rectangle while it is hidden.
    virtual QRect dropDownBoxRect(const QString& /*key*/) const { return {}; }
};
