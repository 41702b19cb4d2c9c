#pragma once

#include <QString>

class DOC_Interface;
class ZebHost;

/// A change that the table makes on many cameras at once: how it is called, and how a camera tells what has become of
/// it. GUI thread.
struct CameraAction {
    /// For the page; and for the user, a key of the catalogues.
    const char* name;
    const char* label;
    /// What the camera has, written as the slot gets it. Throws what the camera throws.
    QString (*read)(DOC_Interface& doc);
    /// Such a value as the user reads it. Throws the same.
    QString (*text)(const ZebHost& host, DOC_Interface& doc, const QString& value);

    enum Trait {
        /// A camera may take something near what was asked without a word.
        MayClamp = 1,
        /// A locked camera is left as it is; one in low light mode.
        KeptByLock = 2,
        KeptByLowLight = 4,
        /// It may move other settings of the camera along.
        MovesOthers = 8,
        /// It reaches cameras that are not connected, or those alone.
        ReachesOff = 16,
        OfThoseOff = 32,
        /// No keys stand for all that are connected; else for nobody.
        NoKeysMeanAll = 64,
        /// In live mode or in memory mode alone; else in both.
        OfLive = 128,
        OfMemory = 256,
        /// The lock counts in live mode only.
        LockOfLive = 512,
        /// Of cameras that hold a recording, or that are selected.
        OfRecorded = 1024,
        OfSelected = 2048,
    };
    int traits = 0;

    bool has(Trait trait) const { return (traits & trait) != 0; }
    /// Whether `asked`, as the slot gets it, can be asked for as things are.
    bool applies(const ZebHost& host, const QString& asked) const;
    /// Whether it is meant for a connected camera. Throws what the camera throws.
    bool isFor(DOC_Interface& doc) const;
    /// Whether the lock of a camera keeps it from it.
    bool heedsLock(const ZebHost& host) const;
};

/// `value` as the user reads it; as it is where the camera does not tell.
QString textOf(const CameraAction& action, const ZebHost& host, DOC_Interface& doc, const QString& value);

namespace cameraaction {

/// A yes or no as `CameraAction::read` writes it.
QString flag(bool on);

extern const CameraAction FrameRate;
extern const CameraAction Shutter;
extern const CameraAction ImageSize;
extern const CameraAction Trigger;
extern const CameraAction LiveSpeed;
extern const CameraAction LowLight;
extern const CameraAction LowLightType;
extern const CameraAction Lock;
extern const CameraAction Connect;
extern const CameraAction Disconnect;
/// Of the host's own wish, which heeds no lock.
extern const CameraAction ForcedDisconnect;
extern const CameraAction Name;
extern const CameraAction Comment;
extern const CameraAction RecordCheck;
extern const CameraAction FirstFrame;
extern const CameraAction LastFrame;
extern const CameraAction Offset;

}  // namespace cameraaction
