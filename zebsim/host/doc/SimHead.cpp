#include "SimHead.h"

#include "Camera.h"
#include "Recording.h"

unsigned int SimHead::getFrameTotal(int /*mode*/, int /*head*/) const {
    m_camera.askConnected("getFrameTotal");
    const auto recording = m_camera.recording();
    return recording ? recording->selectedCount() : 0;
}
