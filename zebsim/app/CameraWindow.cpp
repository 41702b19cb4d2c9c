#include "CameraWindow.h"

#include "CameraView.h"
#include "EffectPanel.h"

#include <QCloseEvent>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

/// In a smaller window the button would hide too much of the image.
constexpr int LeastForMenu = 240;

}  // namespace

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

void CameraWindow::addMenu(QMenu& menu) {
    QToolButton* button = m_menuButton = new QToolButton(m_view);
    button->setText(menu.title());
    button->setMenu(&menu);
    button->setPopupMode(QToolButton::InstantPopup);
    auto* corner = new QHBoxLayout(m_view);
    corner->setContentsMargins({});
    // The image may be smaller than the button.
    corner->setSizeConstraint(QLayout::SetNoConstraint);
    corner->addWidget(button, 0, Qt::AlignRight | Qt::AlignTop);
}

void CameraWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
}

void CameraWindow::resizeEvent(QResizeEvent* event) {
    m_effects->setMaximumHeight(height() / 2);
    if (m_menuButton) {
        m_menuButton->setVisible(width() >= LeastForMenu);
    }
    QMdiSubWindow::resizeEvent(event);
}
