#pragma once

#include <QList>
#include <QMap>
#include <QMetaType>
#include <QSize>
#include <QString>

class DOC_Interface;

/// Key of a camera document. The page sees it as decimal text.
using DOCKEY = unsigned int;

/// Number of a memory partition of a camera, from 1.
using PARTITIONNUMBER = unsigned int;

using DocKeyList = QList<DOCKEY>;
using DocList = QList<DOC_Interface*>;

/// Texts of a message box's buttons: a `QMessageBox::StandardButton` and what stands on it.
using ButtonTexts = QMap<int, QString>;

/// Numbers that host, cameras and table share, each with its one name.
namespace zeb {

constexpr DOCKEY NoDocKey = 0xFFFFFFFFU;

/// Mask of `ZebHost::updateUI` that asks for everything.
constexpr unsigned int UpdateAll = 0xFFFFFFFFU;

enum OperatingMode { LiveMode = 0, MemoryMode = 1, FileMode = 2 };

/// State that the recorder reports for a set of cameras.
enum RecordStatus { RecordLive = 0, RecordCtsReady = 1, RecordReady = 2, RecordRecording = 3, RecordError = 4 };

/// Raw status of one camera, as `DOC_Control::getCameraStatus` answers it.
enum CameraStatus {
    CameraLive = 0,
    CameraRecReady = 2,
    CameraTriggerReady = 4,
    CameraRecording = 8,
    CameraEndlessReady = 64
};

/// Functions that a camera may support, for `DOC_Control::isFunctionSupported`.
enum CameraFunction {
    FunctionIrig = 7,
    FunctionIrigTimeStampPosition = 8,
    FunctionVariable = 14,
    FunctionLowLight = 15,
    FunctionIrigSync = 20,
    FunctionWifi = 112,
    FunctionShutdown = 117,
    FunctionCameraLogFile = 158,
    FunctionReduceMode = 175,
    FunctionCameraLog = 176
};

/// What is on a port of a camera, as `DOC_Control::getPortSignal` answers it.
enum PortSignal {
    SignalOff = 1,
    SignalOnCamPos = 2,
    SignalOnCamNeg = 3,
    SignalOnOthersPos = 4,
    SignalOnOthersNeg = 5,
    SignalEventPos = 6,
    SignalEventNeg = 7,
    SignalTrigPos = 8,
    SignalTrigNeg = 9,
    SignalReadyPos = 10,
    SignalReadyNeg = 11,
    SignalSyncPos = 12,
    SignalSyncNeg = 13,
    SignalOnCam = 14,
    SignalOnOthers = 15,
    SignalNormallyOpen = 16,
    SignalNormallyClose = 17,
    SignalPowerOffPos = 32,
    SignalPowerOffNeg = 33,
    SignalRemoteOn = 258
};

enum LowLightType { LowLightTypeFast = 2, LowLightTypeFine = 3 };

enum TriggerMode {
    TriggerStart = 0,
    TriggerCenter = 1,
    TriggerEnd = 2,
    TriggerRandom = 3,
    TriggerManual = 4,
    TriggerRandomReset = 5,
    TriggerRandomCenter = 6,
    TriggerRandomManual = 7,
    TriggerTwostage = 8,
    TriggerTwostageHalf = 9,
    TriggerTwostageQuarter = 10,
    TriggerTwostageOneeighth = 11,
    TriggerReset = 12,
    TriggerRecOnCmd = 13,
    TriggerRandomLoop = 14,
    TriggerNoneError = 15
};

/// What the preference `sync/lport` puts between the cameras and their signal.
enum SyncPort { SyncPortNone = 0, SyncPortL = 1, SyncPortHub = 2 };

/// `ZebSignalDevice::getRole` of the hub that makes the signal.
constexpr int HubRoleMaster = 0;

/// `DOC_Control::getExposureTimingClass` of the cameras that come first in a chain.
constexpr int ExposureTimingLeads = 1;

/// Parameters of the manual trigger. `triggerFrame`: frames of the memory that are kept for what comes from the trigger
/// on.
struct ManualTriggerParameters {
    int kind = 0;
    int reserved1 = 0;
    int reserved2 = 0;
    int triggerFrame = 0;
};

/// Bits of a pixel: in how many it is kept, and how many of them the camera fills.
struct ImageFormat {
    int depth = 8;
    int realDepth = 8;
};

/// Presets that a device keeps: which of them it works with, from 1, or 0 for none of them, and how many it has.
struct CameraPresetInfo {
    int current = 0;
    int count = 0;
};

/// Channels of variable recording settings count from 1 to this.
constexpr int VariableChannels = 20;

/// One of those channels: what it holds, as the user reads it, and whether it can be chosen.
struct VariableChannelInfo {
    QString text;
    bool settable = false;
};

/// Parameters of a trigger mode. `kind`, `reserved1` and `reserved2` are the host's; callers hand back what they got.
struct TriggerSettings {
    int kind = 0;
    int reserved1 = 0;
    int reserved2 = 0;
    /// Share of the memory that is kept from before a manual trigger, in percent.
    float manualBeforePercent = 0;
    /// Frames of one random trigger, and how often it may come; 0 times stands for no end.
    int randomFrames = 0;
    int randomTimes = 0;
};

/// Preference `display/ShutterSpeed` with this value shows speeds by the camera's second list.
constexpr int ShutterDisplaySecondList = 2;
/// The second list holds exposure times, in nanoseconds.
constexpr int NanosecondsPerSecond = 1000000000;

/// What separates the lines of a camera's comment where the host keeps it.
constexpr auto CommentSeparator = "{Separator}";

/// Items of custom information that a camera takes.
constexpr int MostCustomItems = 64;

/// What a file is written for, the `type` of all that concerns names of files. Some types have preferences and folders
/// in common and differ in nothing that is told here.
enum FileType {
    /// Images of one camera.
    ImageFile = 1,
    OtherImageFile = 2,
    /// Images of several cameras side by side.
    LayoutFile = 4,
    OtherLayoutFile = 5,
    /// Images that were saved before, in another format.
    ConvertedFile = 6,
    /// One image, as it is shown.
    SnapShotFile = 7,
    /// Images with a name that may be empty.
    UnnamedImageFile = 9,
    OtherUnnamedImageFile = 10,
    /// Another format of images, with a name that may be empty.
    UnnamedConvertedFile = 11,
    /// A report.
    ReportFile = 16,
    /// A report, with a name that may be empty.
    UnnamedReportFile = 17,
    /// Images side by side, with a name that may be empty.
    UnnamedLayoutFile = 18
};

/// Kinds of storage media beside SD cards.
enum MediumKind { QuikDrive = 1, CFast = 2 };

/// `ZebDocManager::prepareDrive` of an SD card.
constexpr int SdDriveKind = 5;

/// A medium that the host has found: the reader or camera that it is in, as the host tells them apart, and its name.
struct Medium {
    int type = 0;
    int drive = 0;
    int slot = 0;
    QString name;
};

/// Room on a medium, in bytes. `written`: all that was ever written to it.
struct MediumUse {
    qint64 capacity = 0;
    qint64 used = 0;
    qint64 written = 0;
};

/// What a document holds in one partition. Frame numbers are those of the memory, as `DOC_Frames` has them.
struct RecordedData {
    /// Frames a second, and n of 1/n second.
    unsigned int rate = 0;
    int shutter = 0;
    QSize resolution;
    int first = 0;
    int last = 0;
    int selectStart = 0;
    int selectEnd = 0;
    /// Bytes of all its frames.
    qint64 bytes = 0;
};

/// A recording on a medium, as the medium's own list tells it.
struct MediumData {
    QString fileName;
    /// As the user has named it.
    QString dataName;
    /// Of the camera that has made it.
    QString cameraName;
    QString deviceName;
    QString driveName;
    QString serialNo;
    int dataNo = 0;
    int slot = 0;
    QString date;
    QString time;
    /// It needs the user's eye: it was not read whole.
    bool isMarked = false;
};

/// What a host adds to the name of a file, and whether it holds the session number that it was asked with.
struct FileNameDetails {
    QString text;
    bool hasSession = false;
};

}  // namespace zeb
