#pragma once

#include "CameraFrame.h"
#include "DropDownBoxes.h"
#include "HostWindows.h"
#include "SaveDesk.h"
#include "ZebPrefsDialog.h"
#include "ZebTypes.h"

#include <optional>

class CameraWindows;
class LogStore;
class QDialog;
class SimHost;

/// The application's windows behind the host: dialogs, the image in front, pictures for a support file.
class AppWindows : public HostWindows, private ZebPrefsDialog {
public:
    /// All must outlive the object, and so must the host's main window.
    AppWindows(SimHost& host, const LogStore& log, const CameraWindows& images);
    ~AppWindows() override;
    AppWindows(const AppWindows&) = delete;
    AppWindows& operator=(const AppWindows&) = delete;

    /// The dialog of preferences; runs until it is closed.
    void openPreferences() { runPreferences(); }
    /// The plug-in's file; empty for none.
    void setPluginFile(const QString& path) { m_pluginFile = path; }

    /// The dialog that adds a camera; runs until it is closed.
    void addCamera();

    /// Asks for a folder and opens its recordings.
    void openRecordings();
    /// The page of the storage media; runs until it is closed.
    void openMedia();

    /// Custom information of the selected cameras; runs until it is closed.
    void editCustomInfo();

    /// The dialogs that load the settings of the cameras, from a file or from their presets, and that save them. Each
    /// runs until it is closed.
    void loadSettings();
    void saveSettings();

    ZebPrefsDialog* prefsDialog() override { return this; }
    void openEthernetSettings() override;
    void openAbout() override;
    /// Left when the camera goes, or when others take its place.
    void editCamera(DOCKEY key) override;
    void runProgress(const QString& text, QFutureWatcherBase& watcher) override;
    void waitForRows(ParallelRows& rows, const QStringList& names) override;
    void save(bool layout) override { m_saving.save(layout); }
    bool isSaving() const override { return m_saving.isSaving(); }
    bool isConverting() const override { return m_saving.isConverting(); }
    void importRecordings(const DocKeyList& keys) override { m_saving.import(keys); }
    bool askPassword(const QString& medium, const PasswordTest& fits) override;
    std::optional<QString> askNewPassword(const QString& medium, const PasswordTest& fits) override;
    void snapShot(int mode) override;
    bool openTimeCode() override;
    bool openSaveInfo(const DocKeyList& keys) override;
    int shownFrame(DOCKEY key, const Recording& recording) const override;
    QString fileName(int type, DOCKEY key, PARTITIONNUMBER partition, const QDateTime& time) const override;
    QImage currentImage() const override;
    void addToSupportFile(ZebSupportFile& file) const override;
    void showDropDownBox(const QString& key, const QRect& anchor) override { m_boxes.show(key, anchor); }
    void hideDropDownBox(const QString& key) override { m_boxes.hide(key); }
    bool isDropDownBoxShown() const override { return m_boxes.isShown(); }
    QRect dropDownBoxRect(const QString& key) const override { return m_boxes.rect(key); }

private:
    void setPage(const QString& page) override;
    int exec() override;
    int runPreferences();
    void runOnCameras(QDialog* dialog);
    std::optional<CameraFrame> currentFrame() const;

    SimHost& m_host;
    const LogStore& m_log;
    const CameraWindows& m_images;
    DropDownBoxes m_boxes;
    SaveDesk m_saving;
    QString m_pluginFile;
    QString m_page;
};
