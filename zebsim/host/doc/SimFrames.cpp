#include "SimFrames.h"

#include "Camera.h"
#include "DocContext.h"
#include "HostCalls.h"
#include "Recording.h"
#include "SimAppStatus.h"

unsigned int SimFrames::getFrameCount(int /*partition*/, int /*head*/) const {
    m_camera.askConnected(OPERATION("getFrameCount"));
    if (m_context.appStatus.mode() == zeb::LiveMode) {
        return m_camera.model().frameCapacity(m_camera.state());
    }
    const auto recording = m_camera.recording();
    return recording ? recording->frameCount() : 0;
}

int SimFrames::getFirstFrame(int /*partition*/, int /*head*/) const {
    return ask(OPERATION("getFirstFrame")).first;
}

int SimFrames::getLastFrame(int /*partition*/, int /*head*/) const {
    return ask(OPERATION("getLastFrame")).last;
}

int SimFrames::getTriggerFrame(int /*head*/) const {
    return ask(OPERATION("getTriggerFrame")).zero;
}

int SimFrames::getSelectStartFrame(int /*head*/) const {
    return ask(OPERATION("getSelectStartFrame")).selectedFirst;
}

int SimFrames::getSelectEndFrame(int /*head*/) const {
    return ask(OPERATION("getSelectEndFrame")).selectedLast;
}

bool SimFrames::isPlaying() const {
    m_camera.ask(OPERATION("isPlaying"));
    return m_camera.get(&CameraState::playing);
}

bool SimFrames::isRecordCheck() const {
    m_camera.ask(OPERATION("isRecordCheck"));
    return m_camera.get(&CameraState::recordCheck);
}

void SimFrames::setRecordCheck(bool check) {
    m_context.calls.note("DOC_Frames::setRecordCheck", {m_camera.key(), check});
    m_camera.ask(OPERATION("setRecordCheck"));
    m_camera.set(&CameraState::recordCheck, check);
}

bool SimFrames::isFrameSkipEnabled() const {
    m_camera.ask(OPERATION("isFrameSkipEnabled"));
    return m_camera.get(&CameraState::frameSkipEnabled);
}

void SimFrames::setFrameSkipEnabled(bool enabled) {
    m_context.calls.note("DOC_Frames::setFrameSkipEnabled", {m_camera.key(), enabled});
    m_camera.ask(OPERATION("setFrameSkipEnabled"));
    m_camera.set(&CameraState::frameSkipEnabled, enabled);
}

void SimFrames::setFrameSkipMode(int mode) {
    m_context.calls.note("DOC_Frames::setFrameSkipMode", {m_camera.key(), mode});
    m_camera.ask(OPERATION("setFrameSkipMode"));
    m_camera.set(&CameraState::frameSkipMode, mode);
}

int SimFrames::getFrameSkip() const {
    m_camera.ask(OPERATION("getFrameSkip"));
    return m_camera.get(&CameraState::frameSkip);
}

void SimFrames::setFrameSkip(int frames) {
    m_context.calls.note("DOC_Frames::setFrameSkip", {m_camera.key(), frames});
    m_camera.ask(OPERATION("setFrameSkip"));
    m_camera.set(&CameraState::frameSkip, frames);
}

void SimFrames::setRecordAreaStart(int frame) {
    m_context.calls.note("DOC_Frames::setRecordAreaStart", {m_camera.key(), frame});
    m_camera.ask(OPERATION("setRecordAreaStart"));
    m_camera.set(&CameraState::recordArea, {frame, m_camera.get(&CameraState::recordArea).y()});
}

void SimFrames::setRecordAreaEnd(int frame) {
    m_context.calls.note("DOC_Frames::setRecordAreaEnd", {m_camera.key(), frame});
    m_camera.ask(OPERATION("setRecordAreaEnd"));
    m_camera.set(&CameraState::recordArea, {m_camera.get(&CameraState::recordArea).x(), frame});
}

Recording SimFrames::ask(CameraOperation operation) const {
    m_camera.askConnected(operation);
    return m_camera.recording().value_or(Recording());
}
