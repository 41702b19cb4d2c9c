#pragma once

#include "ZebTypes.h"

#include <QMdiSubWindow>

class CameraView;

/// The window of a camera's image. It comes and goes with the connection; a user can't close it.
class CameraWindow : public QMdiSubWindow {
    Q_OBJECT

public:
    explicit CameraWindow(DOCKEY key);

    DOCKEY key() const { return m_key; }
    CameraView& view() const { return *m_view; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    const DOCKEY m_key;
    CameraView* m_view;
};
