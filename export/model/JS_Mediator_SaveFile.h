#pragma once

#include "JS_Mediator.h"
#include "JobKind.h"
#include "UTL_TAL2_Integration.h"

#include <QStringList>

/// What a page of saving can ask about folders, names and formats of files. It stands beside the bridge of the dialog.
/// GUI thread.
class JS_Mediator_SaveFile : public JS_Mediator {
    Q_OBJECT

public:
    /// `parentWidgetName` is how the page knows the dialog's own bridge; it tells what is saved.
    JS_Mediator_SaveFile(ZebHost* host, const QString& parentWidgetName, QObject* parent = nullptr);

Q_SIGNALS:
    /// Raised by the slots `accept`, `reject` and `refresh`.
    void accepted();
    void rejected();
    void refreshed();
    /// For the page.
    void decision();
    void cancel();
    void apply();

public Q_SLOTS:
    void accept();
    void reject();
    void refresh();

    /// The folder that the user chooses from `dir` on, with "/" at its end; empty when there is none.
    QString selectFolder(const QString& dir);

    /// Numbers in names: the dialogs that choose their digits, and numbers of those digits, each 1.
    void numberSetting4GroupDir();
    void numberSetting4SubDir();
    void numberSetting4FileName();
    QString addNumber4GroupDir();
    QString addNumber4SubDir();
    QString addNumber4FileName();

    /// Formats of files, and what the frames of a video can be coded by. `fromDevice`: of what a camera holds.
    QStringList getFileFormats(bool fromDevice);
    QStringList getSnapFileFormats();
    QStringList getLayoutFileFormats();
    QStringList getCodecFilters();

    /// Of the drive of a path, as "1.50GB"; of one from "/" on that of the nearest folder that is there.
    QString getFreeSpace(const QString& path);

    /// What is saved, and how the page knows the dialog's own bridge.
    bool isSnapMode();
    bool isConvertMode();
    bool isReportMode();
    bool isLayoutMode();
    QString getParentWidgetName();

    /// The present time in that format.
    QString addDateTime(const QString& format);

    /// Cameras that are to be saved, and heads of the device of the chosen one.
    void selectedDocCount(int count) { m_selectedDocCount = count; }
    void selectedDocHeadCount(int count) { m_selectedDocHeadCount = count; }

    /// By the name of a format, in letters of any case: whether all frames stand in one file, and whether the file
    /// takes them as the sensor sees them.
    bool isMovieFormat(const QString& format);
    bool isRawFormat(const QString& format);

    /// The dialog of custom information.
    void editCustom(bool forTemporary);

    /// Folders by camera, JSON arrays: the names of folders, and the name that each camera has chosen.
    QString getMultiPaths();
    QString getMultiPathDevices();

    /// Whether pictures show the name of their file.
    bool isNeedRefreshPreview();

    bool isTal2OptionDisabled();
    bool isTAL2AppInstalled();

private:
    void editNumber(int slot);
    QString numberPreview(int slot) const;

    const JobKind m_kind;
    const QString m_parentWidgetName;
    const UTL_TAL2_Integration m_tal2;
    int m_selectedDocCount = 0;
    int m_selectedDocHeadCount = 0;
};
