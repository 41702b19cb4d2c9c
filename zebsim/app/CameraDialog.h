#pragma once

#include "ZebTypes.h"

#include <QDialog>

class Camera;
class CameraBank;
class QLineEdit;
class QPlainTextEdit;

/// The host's own dialog for a camera: its name and comment. The camera takes them when it is accepted; one that has
/// gone meanwhile takes nothing.
class CameraDialog : public QDialog {
    Q_OBJECT

public:
    /// `camera` is one of `cameras`, which must outlive the dialog; the camera need not.
    CameraDialog(const CameraBank& cameras, const Camera& camera, QWidget* parent);

    void accept() override;
    /// Leaves the dialog when its camera has gone.
    void follow();

private:
    const CameraBank& m_cameras;
    const DOCKEY m_key;
    QLineEdit* m_name;
    QPlainTextEdit* m_comment;
};
