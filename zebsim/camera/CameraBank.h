#pragma once

#include "ZebTypes.h"

#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

class Camera;
class CameraDevice;
class Clock;
class FaultPlan;
struct CameraState;
struct Rig;
struct RigDevice;

/// They live for as long as they are held, whatever becomes of the rig.
using HeldCameras = std::vector<std::shared_ptr<Camera>>;

/// The cameras of the host, each with its key. Keys count from 1 in the order of the rig. Recordings in files are
/// cameras as well, that only have a memory: they stand beside those of the rig, and are listed in their place while
/// files are. GUI thread.
class CameraBank {
public:
    CameraBank(Clock& clock, FaultPlan& faults);
    ~CameraBank();

    /// Key of the first recording in files; none is used twice.
    static constexpr DOCKEY FirstFileKey = 1000001;

    /// Puts the cameras of `rig` in the place of all others of a rig.
    void replace(const Rig& rig);

    /// Finds the devices whose address begins with `network`, three octets; empty: all. It takes the time that the
    /// slowest of them takes to answer. Answers how many there are.
    int search(const QString& network);
    /// The same of the device at that address, if it is there: its first head, null when none answers.
    Camera* searchAt(const QString& address);
    /// Asks the devices that are known once more.
    void searchListed();
    /// Forgets all cameras of the rig, after they were disconnected; a search finds them again.
    void forgetAll();

    /// Adds a recording in files. One that is not `isListed` is known by its key alone.
    DOCKEY addFile(const RigDevice& device, bool isListed = true);
    /// Closes those of these that are recordings in files.
    void removeFiles(const DocKeyList& keys);
    /// The listed ones, in the order in which they came.
    std::vector<Camera*> files() const;
    /// Whether `all` and what follows from it are the recordings in files.
    void listFiles(bool on) { m_listsFiles = on; }
    bool listsFiles() const { return m_listsFiles; }

    /// Null when there is no such camera, when it is gone or not found yet.
    Camera* find(DOCKEY key) const;
    /// The same on any thread: the camera lives for as long as it is held, whatever becomes of the rig.
    std::shared_ptr<Camera> hold(DOCKEY key) const;
    /// Whether there is such a camera, gone or not found yet.
    bool has(DOCKEY key) const { return held(key) != nullptr; }
    /// Those of these cameras that are there, in the order of `keys`. Any thread.
    HeldCameras hold(const DocKeyList& keys) const;
    /// The same with the first head only of each device, for what reaches the heads together.
    HeldCameras holdDevices(const DocKeyList& keys) const;
    /// Those of the rig that are connected, in the order of their keys. Any thread.
    HeldCameras holdConnected() const;
    /// In the order of their keys, without those that are gone or not found yet.
    std::vector<Camera*> all() const;
    /// The one of `all` with that key; null when it is not among them. It costs no walk through the others.
    Camera* findAmongAll(DOCKEY key) const;
    std::vector<Camera*> connected() const;
    /// Those of the rig, whatever is listed, and with those that are gone or not found.
    std::vector<Camera*> ofRig() const;
    std::vector<Camera*> connectedOfRig() const;
    std::vector<Camera*> known() const;
    /// The first head, of those that are there, of the device at that address.
    Camera* listedAt(const QString& address) const;
    /// Place of the camera's device in the rig, from 0; of a recording in files among those.
    int deviceNumberOf(const Camera& camera) const;
    /// Devices that are found, gone ones too; files while they are listed.
    int deviceCount() const;
    /// The camera's name, with its address where a known one is called alike; of a recording in files with what it was
    /// called when it was opened, or with the path of the file that tells of it.
    QString labelOf(const Camera& camera) const;
    /// Keys of `all`, and of those of them that are so, as `keysOf(&CameraState::selected)`.
    DocKeyList keys() const;
    DocKeyList keysOf(bool CameraState::*member) const;

private:
    struct File {
        std::shared_ptr<Camera> camera;
        bool isListed;
    };

    void waitFor(const std::vector<const CameraDevice*>& devices);
    /// Null when there is none.
    std::shared_ptr<Camera> held(DOCKEY key) const;

    Clock& m_clock;
    FaultPlan& m_faults;
    std::vector<std::shared_ptr<CameraDevice>> m_devices;
    /// Each keeps its device. Guarded where another thread reads them.
    std::vector<std::shared_ptr<Camera>> m_cameras;
    std::map<DOCKEY, File> m_files;
    DOCKEY m_nextFile = FirstFileKey;
    bool m_listsFiles = false;
    mutable std::mutex m_mutex;
};
