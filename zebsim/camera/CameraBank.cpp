#include "CameraBank.h"

#include "Camera.h"
#include "Clock.h"
#include "Rig.h"

#include <QDir>
#include <QStringList>

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace {

bool isListed(const Camera& camera) {
    return camera.device().isFound() && !camera.isGone();
}

std::vector<Camera*> connectedOf(std::vector<Camera*> cameras) {
    cameras.erase(std::remove_if(cameras.begin(), cameras.end(),
                                 [](const Camera* camera) { return !camera->get(&CameraState::connected); }),
                  cameras.end());
    return cameras;
}

}  // namespace

CameraBank::CameraBank(Clock& clock, FaultPlan& faults) : m_clock(clock), m_faults(faults) {}

CameraBank::~CameraBank() = default;

void CameraBank::replace(const Rig& rig) {
    std::vector<std::shared_ptr<CameraDevice>> devices;
    std::vector<std::shared_ptr<Camera>> cameras;
    for (const RigDevice& device : rig.devices) {
        const DOCKEY firstKey = static_cast<DOCKEY>(cameras.size() + 1);
        devices.push_back(std::make_shared<CameraDevice>(device, firstKey, m_clock, m_faults));
        for (const auto& head : devices.back()->heads()) {
            cameras.emplace_back(devices.back(), head.get());
        }
    }
    const std::lock_guard lock(m_mutex);
    m_devices.swap(devices);
    m_cameras.swap(cameras);
}

int CameraBank::search(const QString& network) {
    std::vector<const CameraDevice*> answering;
    for (const auto& device : m_devices) {
        if (network.isEmpty() || device->address().section(QLatin1Char('.'), 0, 2) == network) {
            device->setFound(true);
            answering.push_back(device.get());
        }
    }
    waitFor(answering);
    return int(answering.size());
}

Camera* CameraBank::searchAt(const QString& address) {
    for (const auto& device : m_devices) {
        const auto& heads = device->heads();
        const auto isThere = [](const auto& head) { return !head->isGone(); };
        if (device->address() == address && std::any_of(heads.begin(), heads.end(), isThere)) {
            device->setFound(true);
            waitFor({device.get()});
        }
    }
    return listedAt(address);
}

void CameraBank::searchListed() {
    std::vector<const CameraDevice*> known;
    for (const auto& device : m_devices) {
        if (device->isFound()) {
            known.push_back(device.get());
        }
    }
    waitFor(known);
}

void CameraBank::waitFor(const std::vector<const CameraDevice*>& devices) {
    int longest = 0;
    for (const CameraDevice* device : devices) {
        longest = std::max(longest, device->latency());
    }
    m_clock.wait(longest);
}

void CameraBank::forgetAll() {
    for (const auto& device : m_devices) {
        device->setFound(false);
        for (const auto& head : device->heads()) {
            head->set(&CameraState::connected, false);
            head->set(&CameraState::selected, false);
            head->set(&CameraState::locked, false);
            head->set(&CameraState::recordCheck, false);
        }
    }
}

DOCKEY CameraBank::addFile(const RigDevice& device, bool isListed) {
    const DOCKEY key = m_nextFile++;
    const auto held = std::make_shared<CameraDevice>(device, key, m_clock, m_faults);
    const std::lock_guard lock(m_mutex);
    m_files[key] = {std::shared_ptr<Camera>(held, held->heads().front().get()), isListed};
    return key;
}

void CameraBank::removeFiles(const DocKeyList& keys) {
    const std::lock_guard lock(m_mutex);
    for (const DOCKEY key : keys) {
        m_files.erase(key);
    }
}

std::shared_ptr<Camera> CameraBank::held(DOCKEY key) const {
    const auto file = m_files.find(key);
    return file != m_files.end()                 ? file->second.camera
           : key >= 1 && key <= m_cameras.size() ? m_cameras[key - 1]
                                                 : nullptr;
}

Camera* CameraBank::find(DOCKEY key) const {
    const auto camera = held(key);
    return camera && isListed(*camera) ? camera.get() : nullptr;
}

std::shared_ptr<Camera> CameraBank::hold(DOCKEY key) const {
    const std::lock_guard lock(m_mutex);
    auto camera = held(key);
    return camera && isListed(*camera) ? camera : nullptr;
}

HeldCameras CameraBank::holdConnected() const {
    const std::lock_guard lock(m_mutex);
    HeldCameras cameras;
    std::copy_if(m_cameras.begin(), m_cameras.end(), std::back_inserter(cameras),
                 [](const auto& camera) { return isListed(*camera) && camera->get(&CameraState::connected); });
    return cameras;
}

std::vector<Camera*> CameraBank::all() const {
    return m_listsFiles ? files() : ofRig();
}

Camera* CameraBank::findAmongAll(DOCKEY key) const {
    const auto file = m_files.find(key);
    const bool isFile = file != m_files.end();
    return isFile != m_listsFiles || (isFile && !file->second.isListed) ? nullptr : find(key);
}

std::vector<Camera*> CameraBank::files() const {
    std::vector<Camera*> cameras;
    for (const auto& [key, file] : m_files) {
        if (file.isListed && isListed(*file.camera)) {
            cameras.push_back(file.camera.get());
        }
    }
    return cameras;
}

std::vector<Camera*> CameraBank::ofRig() const {
    std::vector<Camera*> cameras;
    for (const auto& camera : m_cameras) {
        if (isListed(*camera)) {
            cameras.push_back(camera.get());
        }
    }
    return cameras;
}

Camera* CameraBank::listedAt(const QString& address) const {
    const auto cameras = ofRig();
    const auto found = std::find_if(cameras.begin(), cameras.end(),
                                    [&address](const Camera* camera) { return camera->device().address() == address; });
    return found == cameras.end() ? nullptr : *found;
}

std::vector<Camera*> CameraBank::connected() const {
    return connectedOf(all());
}

std::vector<Camera*> CameraBank::connectedOfRig() const {
    return connectedOf(ofRig());
}

DocKeyList CameraBank::keys() const {
    DocKeyList keys;
    for (const Camera* camera : all()) {
        keys.append(camera->key());
    }
    return keys;
}

DocKeyList CameraBank::keysOf(bool CameraState::*member) const {
    DocKeyList keys;
    for (const Camera* camera : all()) {
        if (camera->get(member)) {
            keys.append(camera->key());
        }
    }
    return keys;
}

std::vector<Camera*> CameraBank::known() const {
    std::vector<Camera*> cameras;
    for (const auto& camera : m_cameras) {
        cameras.push_back(camera.get());
    }
    return cameras;
}

int CameraBank::deviceNumberOf(const Camera& camera) const {
    const auto file = m_files.find(camera.key());
    if (file != m_files.end()) {
        return int(std::distance(m_files.begin(), file));
    }
    const auto isIts = [&camera](const auto& device) { return device.get() == &camera.device(); };
    return int(std::distance(m_devices.begin(), std::find_if(m_devices.begin(), m_devices.end(), isIts)));
}

int CameraBank::deviceCount() const {
    if (m_listsFiles) {
        return int(files().size());
    }
    return int(std::count_if(m_devices.begin(), m_devices.end(), [](const auto& device) { return device->isFound(); }));
}

QString CameraBank::labelOf(const Camera& camera) const {
    const QString name = camera.name();
    const bool isFile = m_files.count(camera.key()) > 0;
    const auto cameras = isFile ? files() : known();
    const auto alike =
        std::count_if(cameras.begin(), cameras.end(), [&name](const Camera* known) { return known->name() == name; });
    if (alike < 2) {
        return name;
    }
    QString detail = isFile ? camera.get(&CameraState::originalName) : camera.address();
    const auto isCalledSo = [&detail](const Camera* known) { return known->get(&CameraState::originalName) == detail; };
    if (isFile && std::count_if(cameras.begin(), cameras.end(), isCalledSo) > 1) {
        detail = QDir::toNativeSeparators(camera.get(&CameraState::sourceFile));
    }
    return QString(name % QStringLiteral(" (") % detail % QLatin1Char(')'));
}

HeldCameras CameraBank::hold(const DocKeyList& keys) const {
    HeldCameras cameras;
    for (const DOCKEY key : keys) {
        if (auto camera = hold(key)) {
            cameras.push_back(std::move(camera));
        }
    }
    return cameras;
}

HeldCameras CameraBank::holdDevices(const DocKeyList& keys) const {
    HeldCameras cameras = hold(keys);
    std::set<const CameraDevice*> devices;
    const auto isFurtherHead = [&](const auto& camera) { return !devices.insert(&camera->device()).second; };
    cameras.erase(std::remove_if(cameras.begin(), cameras.end(), isFurtherHead), cameras.end());
    return cameras;
}
