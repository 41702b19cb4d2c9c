#pragma once

#include <QImage>
#include <QString>

class QFutureWatcherBase;
class QPoint;
class QRect;
class ZebPrefsDialog;
struct ZebSupportFile;

/// The application's own windows, as the host reaches them. A host without an application has none. GUI thread.
class AppDesk {
public:
    virtual ~AppDesk() = default;

    /// The dialog of preferences; never null.
    virtual ZebPrefsDialog* prefsDialog() = 0;
    /// Each runs until the user has closed it.
    virtual void openPreferences() = 0;
    virtual void openEthernetSettings() = 0;
    virtual void openAbout() = 0;
    /// A modal progress with `text` until `watcher` has finished; nothing cancels it.
    virtual void runProgress(const QString& text, QFutureWatcherBase& watcher) = 0;

    /// Asks what is to be saved of the recordings and where, each camera for itself or all in one picture, and begins.
    virtual void save(bool layout) = 0;
    virtual bool isSaving() const = 0;
    /// As `ZebSaver::snapShot`.
    virtual void snapShot(int mode) = 0;

    /// The image in front as it is shown; a null image without one.
    virtual QImage currentImage() const = 0;
    /// Adds what only the application knows: its log, pictures of its windows and of its plug-ins' dialogs.
    virtual void addToSupportFile(ZebSupportFile& file) const = 0;

    /// The floating lists beside a control of the viewer's page, by key: "partition", "variable", "variableRegist". An
    /// unknown key is ignored.
    virtual void showDropDownBox(const QString& key, const QRect& anchor) = 0;
    /// Without a key all of them.
    virtual void hideDropDownBox(const QString& key) = 0;
    virtual bool isDropDownBoxShown() const = 0;
    /// Where the list of that key stands, in the pixels of the page; a null rectangle while it is hidden.
    virtual QRect dropDownBoxRect(const QString& key) const = 0;
};
