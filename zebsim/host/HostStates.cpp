#include "HostStates.h"

#include "Camera.h"
#include "CameraBank.h"
#include "DOC_Interface.h"
#include "StatusFlags.h"

#include <QApplication>
#include <QWidget>

bool HostStates::isModalDialogOpening() const {
    return QApplication::activeModalWidget() || m_flags.isOn(StatusFlags::IsModalDialogOpening);
}

bool HostStates::isZebActive(const QWidget* window) const {
    return (window && window->isActiveWindow()) || m_flags.isOn(StatusFlags::IsActiveZebOnWren);
}

QWidget* HostStates::fullScreenWidget(QWidget* window) const {
    const bool full = window && (window->isFullScreen() || m_flags.isOn(StatusFlags::IsFullScreen));
    return full ? window : nullptr;
}

QList<int> HostStates::syncCapableCameraTypes() const {
    QList<int> types;
    for (const Camera* camera : m_cameras.ofRig()) {
        const CameraModel& model = camera->model();
        if (model.syncCapable && !types.contains(model.type)) {
            types.append(model.type);
        }
    }
    return types;
}

bool HostStates::isCapable(const QString& capability, const DOC_Interface* doc) const {
    const Camera* camera = doc ? m_cameras.find(doc->getKey()) : nullptr;
    return camera && camera->model().capabilities.contains(capability);
}
