#include "saving/LastShoot.h"

#include "camera/Camera.h"
#include "host/CameraBank.h"
#include "host/HostEvents.h"

#include <algorithm>

LastShoot::LastShoot(const CameraBank& cameras, const HostEvents& events) : m_cameras(cameras) {
    connect(&events, &HostEvents::somethingRecorded, this, &LastShoot::begin);
}

void LastShoot::begin() {
    m_before = m_last;
    for (const Camera* camera : m_cameras.known()) {
        m_last = std::max(m_last, camera->get(&CameraState::serial));
    }
}

bool LastShoot::isEarlier(const Recording& recording) const {
    return m_last > 0 && recording.serial <= m_before;
}

QList<AbsentCamera> LastShoot::absent() const {
    QList<AbsentCamera> absent;
    for (const Camera* camera : m_cameras.known()) {
        const auto recording = camera->recording();
        const bool isThere = m_cameras.find(camera->key()) != nullptr && camera->get(&CameraState::connected);
        if (recording && recording->serial > m_before && !isThere) {
            absent.append({camera->name(), camera->isGone()});
        }
    }
    return absent;
}
