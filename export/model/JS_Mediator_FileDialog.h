#pragma once

#include "JS_Mediator_Dialog.h"
#include "JobKind.h"
#include "NameSource.h"
#include "SkipPrefs.h"
#include "TargetRecords.h"
#include "ZebTypes.h"

#include <QDateTime>
#include <QMap>

#include <memory>

class ExportNames;

/// A partition whose recording is to be saved.
struct ExportTarget {
    DOCKEY key = 0;
    PARTITIONNUMBER partition = 0;
};

/// What a page can ask and do that saves recordings or opens saved ones: which there are, on cameras and on media, how
/// they look, which of their frames are saved, and where their files go. GUI thread.
///
/// A slot for a document that is gone does nothing and answers the default. The slots stand in `SkipSlots.cpp` and its
/// like.
class JS_Mediator_FileDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// `name` is that of the dialog too, which tells what it saves.
    JS_Mediator_FileDialog(ZebHost* host, const QString& name, QObject* parent = nullptr);

    /// Stores how frames are counted, a `FrameSkipMode`, and the distance between two that are saved.
    virtual void applySkipMode(int mode);
    void applySkipFrames(double val) override;
    /// That every name of the dialog holds: the dialog was made then.
    const QDateTime& time() const { return m_time; }
    /// What `refreshSkipFrame` was told last.
    const QList<ExportTarget>& targets() const { return m_targets; }

Q_SIGNALS:
    /// Cameras that are to be saved, and heads of the device of the chosen one.
    void selectedDocCount(int count);
    void selectedDocHeadCount(int count);

public Q_SLOTS:
    // Which frames are saved.
    void setSkipMode(int mode) override;
    int getSkipMode() override;
    void setSkipFrames(double val) override;
    double getSkipFrames() override;

    /// Opens the recordings in a folder that the user chooses. False when there are none, or no folder.
    bool openFolder();

    /// Dialogs of the host. Refused, with a message, while saved files are converted; false when the user gives up.
    bool openCustumTimeCodeDialog();
    bool openConvertParameterEditDialog(const QVariantList& dockeyList);

    // Media, a JSON object each: `record`, an array, and `select`, the index of the open one.
    QString getSDDrives();
    QString getFDDrives();
    QString getCFDrives();
    /// Open a medium: an SD card by its place in the last list. Another one that is open is closed if the user agrees.
    void selectSDDrive(int recid);
    void selectFDDrive(int fdType, int driveNo, int slotNo, const QString& driveName);
    void selectCFDrive(int cfType, int driveNo, int slotNo, const QString& driveName);

    void importTarget(const QVariantList& dockeyList);

    /// A JSON array with a record for each recording of the connected cameras; `temporary`: of what is to be saved from
    /// media. A camera that fails has none.
    virtual QString list(bool temporary = false);
    /// Chooses a partition. Its picture, of at most so many pixels, as PNG in Base64; empty when it has none.
    virtual QString select(DOCKEY dockey, PARTITIONNUMBER partitionNo, int width, int height);
    /// As the dialogs above: what a saved picture shows of these cameras.
    bool saveInfoView(const QVariantList& targets);

    /// The partition that is chosen.
    DOCKEY getSelectDocKey();
    void setSelectDocKey(ulong dockey);
    PARTITIONNUMBER getSelectPartitionNo();
    void setSelectPartitionNo(int partitionNo);

    // Recordings on media.
    bool canConvertDataName(DOCKEY docKey);
    bool canSavedCheck(DOCKEY docKey);
    /// `sequence` counts those of one name from 1; `fd`: they are on a QUIK Drive.
    void convertDataName(DOCKEY docKey, const QString& dataName, int sequence, bool fd);
    /// Used part of a medium, as "37.5%", and all that was ever written to a QUIK Drive, as "1.50GB".
    QString getFDUseRatio(ulong type, ulong driveNo, ulong slotNo);
    QString getCFUseRatio(ulong type, ulong driveNo, ulong slotNo);
    QString getTotalWrittenAmount(ulong type, ulong driveNo, ulong slotNo);
    void formatQuikDrive(ulong type, ulong driveNo, ulong slotNo);
    void formatCFast(ulong type, ulong driveNo, ulong slotNo);

    /// Whether the file of a document can go, and whether it went.
    bool checkDeleteFile(DOCKEY docKey);
    bool deleteFile(DOCKEY docKey);

    /// Bytes of all that is selected, as "1.50GB". `selects` are records of `list`, or the bytes of each.
    QString capcityToString(const QVariantList& selects);
    /// `targets`: lists of partitions by document keys. They are kept, and the frame skip is fitted to them.
    void refreshSkipFrame(const QVariantMap& targets);

    void setQuikDrivePassword(int fdType, int driveNo);
    bool existSetQuikDrivePassword(int fdType, int driveNo);
    /// Compares recordings on media, by `datano` and `serialno`, with what was saved of them in a folder that the user
    /// chooses. False without a folder.
    bool savedCheck(const QVariantList& list);

    // Where the files of the chosen partition go: root folder, name, and the directories between.
    QString getExportPath();
    QString getExportFile();
    /// Of another partition.
    QString getExportGroupDir(DOCKEY docKey, PARTITIONNUMBER partitionNo = 1);
    /// Of the first camera that is selected.
    QString getExportGroupDir();
    QString getExportSubDir();

    int countSelectedDocs();

public:
    /// Name of the chosen partition's files, without folder and ending.
    virtual QString exportFileName(bool details);

protected:
    /// What the names of a partition's files are composed from; null when its document is gone.
    virtual std::unique_ptr<NamedDocument> namedDocument(DOCKEY key, PARTITIONNUMBER partition);
    /// The records of `list` for these documents.
    QString recordsText(const DocKeyList& keys, bool onMedium);

private:
    template <typename Work>
    auto onDocument(DOCKEY key, Work work);
    bool isRefused() const;
    void openMedium(int kind, const zeb::Medium& medium, const QString& question);
    bool userAgreesToClose(const QString& question, const QString& name) const;
    QString mediaText(int kind) const;
    zeb::Medium foundMedium(int kind, ulong type, ulong drive, ulong slot) const;
    zeb::Medium quikDrive(int type, int drive) const;
    QString useRatio(int kind, ulong type, ulong drive, ulong slot) const;
    void format(int kind, ulong type, ulong drive, ulong slot);
    QString groupDirOf(DOCKEY key, PARTITIONNUMBER partition);
    template <typename Names>
    QString named(DOCKEY key, PARTITIONNUMBER partition, Names names);
    template <typename Part>
    QString chosenName(Part part);

    const JobKind m_kind;
    const QDateTime m_time;
    SkipPrefs m_skipPrefs;
    const TargetRecords m_records;
    QMap<int, QString> m_driveNames;
    QList<ExportTarget> m_targets;
    DOCKEY m_selectDocKey = 0;
    PARTITIONNUMBER m_selectPartitionNo = 0;
    DOCKEY m_groupDocKey = 0;
};
