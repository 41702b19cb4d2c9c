#include "host/SimHead.h"

#include "camera/Camera.h"
#include "camera/Recording.h"

unsigned int SimHead::getFrameTotal(int /*mode*/, int /*head*/) const {
    m_camera.askConnected("getFrameTotal");
    const auto recording = m_camera.recording();
    return recording ? recording->selectedCount() : 0;
}
