#pragma once

#include "Camera.h"
#include "HostCalls.h"
#include "HostContext.h"

/// A topic of a document. What is asked of its camera takes the time that a planted fault says, and throws
/// `CameraError`; "connected" in a name: also when the camera is not. Any thread, where the boundary says "loops": its
/// camera, the plan of faults, the clock and the journal may be used from several, and nothing else is.
template <typename Topic>
class DocTopic : public Topic {
public:
    DocTopic(Camera& camera, const HostContext& host) : m_camera(camera), m_host(host) {}

protected:
    /// A question to the camera, which answers it.
    const Camera& ask(CameraOperation operation) const {
        m_camera.ask(operation);
        return m_camera;
    }
    const Camera& askConnected(CameraOperation operation) const {
        m_camera.askConnected(operation);
        return m_camera;
    }
    /// One that a member of `CameraState` or `CameraModel` answers.
    template <typename T, typename Owner>
    T ask(CameraOperation operation, T Owner::*member) const {
        return ask(operation).get(member);
    }
    template <typename T, typename Owner>
    T askConnected(CameraOperation operation, T Owner::*member) const {
        return askConnected(operation).get(member);
    }

    /// A change that stands in the journal, with the camera's key before `args`. One that is a command of the camera
    /// is only noted, for the camera names it.
    Camera& change(CameraOperation operation, const QVariantList& args) const {
        note(operation.call(), args).ask(operation);
        return m_camera;
    }
    Camera& changeConnected(CameraOperation operation, const QVariantList& args) const {
        note(operation.call(), args).askConnected(operation);
        return m_camera;
    }
    Camera& note(const char* call, const QVariantList& args) const {
        m_host.calls.note(call, QVariantList{m_camera.key()} + args);
        return m_camera;
    }

    Camera& m_camera;
    const HostContext& m_host;
};
