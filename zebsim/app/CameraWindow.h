#pragma once

#include "ZebTypes.h"

#include <QMdiSubWindow>

class CameraView;
class EffectPanel;
class QMenu;
class QToolButton;

/// The window of a camera's image, with the panel of its image plug-ins, which is hidden at first, and a button for a
/// menu in its corner. It comes and goes with the connection; a user can't close it.
class CameraWindow : public QMdiSubWindow {
    Q_OBJECT

public:
    explicit CameraWindow(DOCKEY key);

    /// Gives the menu a button of its title. The window must outlive it.
    void addMenu(QMenu& menu);

    DOCKEY key() const { return m_key; }
    CameraView& view() const { return *m_view; }
    EffectPanel& effects() const { return *m_effects; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    const DOCKEY m_key;
    CameraView* m_view;
    QToolButton* m_menuButton = nullptr;
    EffectPanel* m_effects;
};
