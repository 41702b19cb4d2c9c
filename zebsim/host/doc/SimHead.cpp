#include "SimHead.h"

#include "Camera.h"
#include "Recording.h"

unsigned int SimHead::getFrameTotal(int /*mode*/, int /*head*/) const {
    m_camera.askConnected(OPERATION("getFrameTotal"));
    const auto recording = m_camera.recording();
    return recording ? recording->selectedCount() : 0;
}
