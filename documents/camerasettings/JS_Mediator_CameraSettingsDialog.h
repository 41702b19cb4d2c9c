#pragma once

#include "JS_Mediator_Dialog.h"
#include "ZebTypes.h"

#include <QMap>
#include <QStringList>

/// What the page for saving camera settings can ask and do. GUI thread.
class JS_Mediator_CameraSettingsDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// Makes `folder` if it is not there.
    JS_Mediator_CameraSettingsDialog(ZebHost* host, const QString& folder, QObject* parent = nullptr);

public Q_SLOTS:
    /// Where the settings went last: 0 into a file, else into presets of the devices.
    int getDialogMode() { return m_dialogMode; }
    /// JSON with `FolderPath` and `FileName`, that without date, time and suffix.
    QString getFilePathSettings();
    /// The user's own name or that of the first selected camera. `additional`: with the date and time, if the user
    /// wants them there, and the suffix.
    QString getFileName(bool additional = false);
    /// A map for each device that is connected: `key`, `name`, `ipaddress`, `devicename`, the numbers `presetno` of its
    /// `presets` with the one that it works with `selected`, and `selNone` when there is none of that kind.
    QVariantList getPresetList();
    /// The present date and time.
    QString addDateTime(const QString& format);
    /// How the name is made, as JSON: `userFileName`, `original` when that is used, `addTime` and `addTimeFormat`.
    QString recvFileNameDialogData();
    void sendFileNameDialogData(const QString& sendData);
    /// Let the user choose; whether one was chosen. Each runs an event loop.
    bool openFile();
    bool openFolder();
    /// JSON with `dialogMode` and `presetList`, of objects with `key` and `value`, the number of a preset or 0 for
    /// none. Saves and closes the dialog; it stays when it did not save, and the user knows why.
    void ok(const QString& sendData);
    void cancel();

private:
    QString baseName() const;
    QString fullName() const;
    QString timeFormat() const;
    bool rigxFunc();
    void presetFunc();
    bool mayWrite(const QString& path, const QString& name);

    int m_dialogMode = 0;
    QString m_folder;
    const QStringList m_fileTypes{QStringLiteral("rigx"), QStringLiteral("RIGX")};
    /// Numbers by the keys of the cameras that are to store their settings.
    QMap<DOCKEY, int> m_presets;
};
