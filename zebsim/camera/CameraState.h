#pragma once

#include "CustomInfo.h"
#include "ZebTypes.h"

#include <QList>
#include <QMap>
#include <QMetaType>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <memory>

class RecordedPictures;

/// What is in a partition of a camera's memory.
struct PartitionMemory {
    Q_GADGET
    Q_CLASSINFO("recordings",
                "recorded recordedRate recordedShutter recordedResolution recordedRange recordedTrigger selectedRange "
                "triggerOffsetEnabled triggerOffset recordCheck recordedCustomInfo")
    Q_PROPERTY(bool recorded MEMBER recorded)
    Q_PROPERTY(uint recordedRate MEMBER recordedRate)
    Q_PROPERTY(int recordedShutter MEMBER recordedShutter)
    Q_PROPERTY(QSize recordedResolution MEMBER recordedResolution)
    Q_PROPERTY(QPoint recordedRange MEMBER recordedRange)
    Q_PROPERTY(int recordedTrigger MEMBER recordedTrigger)
    Q_PROPERTY(QPoint selectedRange MEMBER selectedRange)
    Q_PROPERTY(bool triggerOffsetEnabled MEMBER triggerOffsetEnabled)
    Q_PROPERTY(int triggerOffset MEMBER triggerOffset)
    Q_PROPERTY(bool recordCheck MEMBER recordCheck)
    Q_PROPERTY(CustomInfo recordedCustomInfo MEMBER recordedCustomInfo)
public:
    bool recorded = false;
    /// Frames a second, n of 1/n second, pixels, first and last frame, frame of the trigger, first and last frame to
    /// keep. A rate or shutter of 0 and no pixels: as the camera is set; a range that ends before it begins: all
    /// frames.
    unsigned int recordedRate = 0;
    int recordedShutter = 0;
    QSize recordedResolution{0, 0};
    QPoint recordedRange{0, -1};
    int recordedTrigger = 0;
    QPoint selectedRange{0, -1};
    /// A zero point for playing instead of the trigger's frame.
    bool triggerOffsetEnabled = false;
    int triggerOffset = 0;
    bool recordCheck = false;
    /// The camera's list when it was armed for the recording.
    CustomInfo recordedCustomInfo;
    /// As `Recording::serial`; only a recording changes it.
    quint64 serial = 0;
    /// As `Recording::shoot`.
    QString shoot;
    /// First and last frame of each selected range of this recording that stands in files; only a save adds one.
    QList<QPoint> savedRanges;
    /// Null for what lies in the memory of a camera.
    std::shared_ptr<const RecordedPictures> pictures;
};

/// Everything about a camera or head that can change. The property names are the members of a head in a rig file and of
/// the scenario's `zeb.camera`.
///
/// Each of them is of one kind. Settings are what a user has chosen and would want back: `recordSettings` are how the
/// camera records, which its presets keep too, `userSettings` what it is called, what goes with its images and how they
/// are shown. States are what the camera is or does at present, what it has at hand, and what is kept of it elsewhere;
/// recordings are what lies in its memory.
struct CameraState : PartitionMemory {
    Q_GADGET
    Q_CLASSINFO("recordSettings",
                "resolution rate shutter triggerMode triggerFrame randomFrames randomTimes randomCounted recordArea "
                "reduce lowLight lowLightType resolutionLock shutterSpeedLock ports dualSlope autoExposure irig "
                "irigStampAtEnd irigSync variable binningPower")
    Q_CLASSINFO("userSettings",
                "name comment alias customInfo partitionNames variableChannels effectivePlugins pluginValues lutCurve "
                "frameSkipEnabled frameSkipMode frameSkip scale rotation flipHorizontal flipVertical zoom")
    Q_CLASSINFO("states",
                "wifi slowLink connected selected mobile sd quikDrive cfast locked recordState status alerts "
                "syncStatus syncSource syncFrequency syncMaster plugins blockedPlugins presets preset suspendReduce "
                "stopLive playing point")
    Q_CLASSINFO("recordings", "partitions partition")
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString comment MEMBER comment)
    Q_PROPERTY(CustomInfo customInfo MEMBER customInfo)
    Q_PROPERTY(QString alias MEMBER alias)
    Q_PROPERTY(bool wifi MEMBER wifi)
    Q_PROPERTY(bool slowLink MEMBER slowLink)
    Q_PROPERTY(bool connected MEMBER connected)
    Q_PROPERTY(bool selected MEMBER selected)
    Q_PROPERTY(bool mobile MEMBER mobile)
    Q_PROPERTY(bool sd MEMBER sd)
    Q_PROPERTY(bool quikDrive MEMBER quikDrive)
    Q_PROPERTY(bool cfast MEMBER cfast)
    Q_PROPERTY(bool lutCurve MEMBER lutCurve)
    Q_PROPERTY(bool locked MEMBER locked)
    Q_PROPERTY(int recordState MEMBER recordState)
    Q_PROPERTY(int status MEMBER status)
    Q_PROPERTY(QStringList alerts MEMBER alerts)
    Q_PROPERTY(QString syncStatus MEMBER syncStatus)
    Q_PROPERTY(QString syncSource MEMBER syncSource)
    Q_PROPERTY(int syncFrequency MEMBER syncFrequency)
    Q_PROPERTY(uint syncMaster MEMBER syncMaster)
    Q_PROPERTY(QMap<int, int> ports MEMBER ports)
    Q_PROPERTY(int dualSlope MEMBER dualSlope)
    Q_PROPERTY(bool autoExposure MEMBER autoExposure)
    Q_PROPERTY(uint rate MEMBER rate)
    Q_PROPERTY(QSize resolution MEMBER resolution)
    Q_PROPERTY(int shutter MEMBER shutter)
    Q_PROPERTY(int triggerMode MEMBER triggerMode)
    Q_PROPERTY(int triggerFrame MEMBER triggerFrame)
    Q_PROPERTY(int randomFrames MEMBER randomFrames)
    Q_PROPERTY(int randomTimes MEMBER randomTimes)
    Q_PROPERTY(bool randomCounted MEMBER randomCounted)
    Q_PROPERTY(bool reduce MEMBER reduce)
    Q_PROPERTY(bool lowLight MEMBER lowLight)
    Q_PROPERTY(int lowLightType MEMBER lowLightType)
    Q_PROPERTY(bool resolutionLock MEMBER resolutionLock)
    Q_PROPERTY(bool shutterSpeedLock MEMBER shutterSpeedLock)
    Q_PROPERTY(bool irig MEMBER irig)
    Q_PROPERTY(bool irigStampAtEnd MEMBER irigStampAtEnd)
    Q_PROPERTY(bool irigSync MEMBER irigSync)
    Q_PROPERTY(QStringList plugins MEMBER plugins)
    Q_PROPERTY(QStringList effectivePlugins MEMBER effectivePlugins)
    Q_PROPERTY(QStringList blockedPlugins MEMBER blockedPlugins)
    Q_PROPERTY(QVariantMap pluginValues MEMBER pluginValues)
    Q_PROPERTY(QVariantMap presets MEMBER presets)
    Q_PROPERTY(int preset MEMBER preset)
    Q_PROPERTY(bool suspendReduce MEMBER suspendReduce)
    Q_PROPERTY(bool stopLive MEMBER stopLive)
    Q_PROPERTY(uint partitions MEMBER partitions)
    Q_PROPERTY(uint partition MEMBER partition)
    Q_PROPERTY(QStringList partitionNames MEMBER partitionNames)
    Q_PROPERTY(uint variable MEMBER variable)
    Q_PROPERTY(QStringList variableChannels MEMBER variableChannels)
    Q_PROPERTY(bool playing MEMBER playing)
    Q_PROPERTY(bool frameSkipEnabled MEMBER frameSkipEnabled)
    Q_PROPERTY(int frameSkipMode MEMBER frameSkipMode)
    Q_PROPERTY(int frameSkip MEMBER frameSkip)
    Q_PROPERTY(QPoint recordArea MEMBER recordArea)
    Q_PROPERTY(QPoint point MEMBER point)
    Q_PROPERTY(double scale MEMBER scale)
    Q_PROPERTY(int binningPower MEMBER binningPower)
    Q_PROPERTY(double rotation MEMBER rotation)
    Q_PROPERTY(bool flipHorizontal MEMBER flipHorizontal)
    Q_PROPERTY(bool flipVertical MEMBER flipVertical)
    Q_PROPERTY(double zoom MEMBER zoom)
public:
    QString name;
    /// Lines are separated by `zeb::CommentSeparator`.
    QString comment;
    /// The list that goes with the next recording.
    CustomInfo customInfo;
    /// The user's name for the device, and how it is reached: by radio, by a link slower than it should be.
    QString alias;
    bool wifi = false;
    bool slowLink = false;
    bool connected = false;
    bool selected = false;
    bool mobile = false;
    bool sd = false;
    bool quikDrive = false;
    bool cfast = false;
    bool lutCurve = false;
    bool locked = false;
    /// A `zeb::RecordStatus`.
    int recordState = 0;
    /// A `zeb::CameraStatus`.
    int status = zeb::CameraLive;
    QStringList alerts;
    /// What the camera tells of its signal before it has been synchronised.
    QString syncStatus = QStringLiteral("No Sync");
    /// Where its signal comes from since then, one of `syncsource`: the frequency in hertz of an external signal, the
    /// key of a chain's master.
    QString syncSource;
    int syncFrequency = 0;
    unsigned int syncMaster = 0;
    /// The `zeb::PortSignal` at each of its ports, by the port's number.
    QMap<int, int> ports;
    /// Not 0 while the camera blends two exposures.
    int dualSlope = 0;
    bool autoExposure = false;
    unsigned int rate = 0;
    QSize resolution;
    /// n of 1/n second.
    int shutter = 0;
    int triggerMode = zeb::TriggerStart;
    /// Of the manual triggers: frames of the memory that are kept for what comes from the trigger on.
    int triggerFrame = 0;
    /// Of the random trigger: frames of one and how often it comes; the modes random and random reset fill the memory
    /// unless that is counted.
    int randomFrames = 0;
    int randomTimes = 0;
    bool randomCounted = false;
    bool reduce = false;
    bool lowLight = false;
    int lowLightType = zeb::LowLightTypeFast;
    /// The camera's own locks, beside the table's.
    bool resolutionLock = false;
    bool shutterSpeedLock = false;
    /// Frames are stamped with IRIG time, at the end of the exposure or at its start; the camera runs in step with
    /// IRIG.
    bool irig = false;
    bool irigStampAtEnd = false;
    bool irigSync = false;
    bool suspendReduce = false;
    bool stopLive = false;
    /// Image plug-ins by name: those the camera can have, those that work on its images, those it must not use now.
    QStringList plugins;
    QStringList effectivePlugins;
    QStringList blockedPlugins;
    /// The numbers of an image plug-in by their names, by its own name.
    QVariantMap pluginValues;
    /// What this head has of each preset of its device: settings by their names, by its number. And the number of the
    /// one that was loaded or saved last, 0 for none.
    QVariantMap presets;
    int preset = 0;
    /// Names of the memory's partitions, one without a name goes by its number; how many there are, and the one in
    /// use, from 1.
    QStringList partitionNames;
    unsigned int partitions = 1;
    unsigned int partition = 1;
    /// Texts of the channels of variable settings, an empty one can't be chosen; the one in use, from 1, 0 for none.
    QStringList variableChannels;
    unsigned int variable = 0;
    /// What is recorded is being played.
    bool playing = false;
    /// Of playing in step with a faster signal: so many of its frames show one of the camera's.
    bool frameSkipEnabled = false;
    int frameSkipMode = 0;
    int frameSkip = 1;
    /// First and last frame that a recording keeps while areas are in use, counted from the trigger; both 0: all.
    QPoint recordArea;
    QPoint point;
    double scale = 0;
    int binningPower = 0;
    /// How the image stands in its window, as `ZebViewOps` tells it.
    bool flipHorizontal = false;
    bool flipVertical = false;
    double rotation = 0;
    double zoom = 1;
    /// Of a recording in files: the one that tells of them, and what it was called when it was opened.
    QString sourceFile;
    QString originalName;

    /// Names of the members of the kind `recordSettings`, and of all settings.
    static const QStringList& recordSettings();
    static const QStringList& settings();

    /// All members as plain data, as `readMembers` tells.
    QVariantMap toPlain() const;
    /// Those of these names.
    QVariantMap toPlain(const QStringList& names) const;
    /// Sets the members that `members` names, or none of them and throws `StateError`.
    void apply(const QVariantMap& members);
};
