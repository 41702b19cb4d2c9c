#pragma once

#include <QString>

/// Preferences of the default settings that C++ reads, and one of the host's own. The dialog's page has them all; what
/// decides on the common signal is read by `syncprefs`.
namespace settingskeys {

/// The dialog has been accepted once.
inline const QString Done = QStringLiteral("wren/settings/done");
inline const QString Groups = QStringLiteral("wren/settings/groups");

/// Behind the key of a list or a signal: the key of its switch.
inline const QString SwitchSuffix = QStringLiteral("Enable");
inline const QString FrameRates = QStringLiteral("wren/settings/frameRates");
inline const QString ShutterSpeeds = QStringLiteral("wren/settings/shutterSpeeds");
inline const QString Resolutions = QStringLiteral("wren/settings/resolutions");
inline const QString Areas = QStringLiteral("wren/settings/areas");
inline const QString ExternalSyncSignals = QStringLiteral("wren/settings/externalSyncSignals");

/// Hertz of the external sync signal, of use with the switch of its list.
inline const QString ExternalSyncSignal = QStringLiteral("wren/settings/externalSyncSignal");

/// The parameters of the triggers come from here and not from the host.
inline const QString TriggerMode = QStringLiteral("wren/settings/triggerMode");
inline const QString TriggerEnable = QStringLiteral("wren/settings/triggerEnable");
inline const QString TriggerManualBeforePer = QStringLiteral("wren/settings/triggerManualBeforePer");
inline const QString TriggerRandomTriggerTimes = QStringLiteral("wren/settings/triggerRandomTriggerTimes");
inline const QString TriggerRandomFrame = QStringLiteral("wren/settings/triggerRandomFrame");

/// Signals at the inputs, each with its switch.
inline const QString TriggerSwIn = QStringLiteral("wren/settings/triggerSwIn");
inline const QString TriggerIn = QStringLiteral("wren/settings/triggerIn");

inline const QString ResolutionLock = QStringLiteral("wren/settings/resolutionLock");
inline const QString ShutterSpeedLock = QStringLiteral("wren/settings/shutterSpeedLock");
inline const QString LowLightMaxResolution = QStringLiteral("wren/settings/lowlightMaxResolution");

/// The cameras are put on the common signal before they are armed.
inline const QString RecordingSync = QStringLiteral("wren/settings/recordingSync");
/// They are played at its speed; the host's preferences have the box.
inline const QString DeviceSpeedPlaying = QStringLiteral("wren/settings/deviceSpeedPlaying");

/// Colour of the table while cameras get ready.
inline const QString RecReadyTableColor = QStringLiteral("wren/settings/recreadyTableColor");

}  // namespace settingskeys
