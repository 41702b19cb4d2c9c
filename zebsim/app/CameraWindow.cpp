#include "CameraWindow.h"

#include "CameraView.h"

#include <QCloseEvent>

CameraWindow::CameraWindow(DOCKEY key) : m_key(key), m_view(new CameraView(this)) {
    setWidget(m_view);
    setAttribute(Qt::WA_DeleteOnClose, false);
}

void CameraWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
}
