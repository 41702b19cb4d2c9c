#include "CameraWindow.h"

#include "CameraView.h"
#include "EffectPanel.h"

#include <QCloseEvent>
#include <QVBoxLayout>

CameraWindow::CameraWindow(DOCKEY key) : m_key(key), m_view(new CameraView(this)), m_effects(new EffectPanel(this)) {
    auto* inside = new QWidget(this);
    auto* layout = new QVBoxLayout(inside);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_effects);
    setWidget(inside);
    setAttribute(Qt::WA_DeleteOnClose, false);
}

void CameraWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
}

void CameraWindow::resizeEvent(QResizeEvent* event) {
    m_effects->setMaximumHeight(height() / 2);
    QMdiSubWindow::resizeEvent(event);
}
