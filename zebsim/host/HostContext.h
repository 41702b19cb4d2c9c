#pragma once

class CameraBank;
class Clock;
class HostBatch;
class HostCalls;
class HostEvents;
class HostMessages;
class HostWindows;
class MediaShelf;
class Notices;
class Preferences;
class SimAppStatus;
class SimDocManager;
class SimRecorder;
class SimSaver;
class StatusFlags;
class SyncSignal;
class Translator;
class UnsavedGuard;
class UpdateCycle;

/// What the parts of the host reach of each other. It is handed to each of them before all are made, and lives as long
/// as the host.
struct HostContext {
    Clock& clock;
    const HostCalls& calls;
    CameraBank& cameras;
    HostBatch& batch;
    const Preferences& prefs;
    const StatusFlags& flags;
    HostEvents& events;
    UpdateCycle& updates;
    const Translator& translator;
    HostMessages& messages;
    Notices& notices;
    const UnsavedGuard& unsaved;
    SimAppStatus& appStatus;
    const SyncSignal& sync;
    const SimRecorder& recorder;
    SimDocManager& docs;
    const SimSaver& saver;
    MediaShelf& shelf;
    /// Those of the application come and go; never null.
    HostWindows* const& windows;
};
