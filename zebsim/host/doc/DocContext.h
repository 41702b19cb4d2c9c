#pragma once

class CameraBank;
class HostCalls;
class ImageTools;
class Notices;
class Preferences;
class SimAppStatus;
class SimDocManager;
class SimRecorder;
class SyncSignal;
class Translator;

/// What the topics of a document reach of the host.
struct DocContext {
    const HostCalls& calls;
    const CameraBank& cameras;
    ImageTools& tools;
    const Preferences& prefs;
    const SimAppStatus& appStatus;
    const Translator& translator;
    const SyncSignal& sync;
    const SimRecorder& recorder;
    Notices& notices;
    SimDocManager& docs;
};
