#include "LastShoot.h"

#include "Camera.h"
#include "CameraBank.h"
#include "HostEvents.h"

#include <algorithm>

LastShoot::LastShoot(const CameraBank& cameras, const HostEvents& events) : m_cameras(cameras) {
    connect(&events, &HostEvents::shootEnded, this, &LastShoot::begin);
}

void LastShoot::begin() {
    m_before = m_last;
    for (const Camera* camera : m_cameras.known()) {
        for (const Recording& recording : camera->recordings()) {
            m_last = std::max(m_last, recording.serial);
        }
    }
}

bool LastShoot::isEarlier(const Recording& recording) const {
    return !recording.pictures && m_last > 0 && recording.serial <= m_before;
}

QList<AbsentCamera> LastShoot::absent() const {
    QList<AbsentCamera> absent;
    for (const Camera* camera : m_cameras.known()) {
        if (m_cameras.find(camera->key()) != nullptr && camera->get(&CameraState::connected)) {
            continue;
        }
        const std::vector<Recording> recordings = camera->recordings();
        const auto isLost = [this](const Recording& recording) {
            return recording.serial > m_before && !recording.saved;
        };
        if (std::any_of(recordings.begin(), recordings.end(), isLost)) {
            absent.append(
                {m_cameras.labelOf(*camera), camera->isGone() ? AbsentCamera::Gone : AbsentCamera::Disconnected});
        }
    }
    return absent;
}
