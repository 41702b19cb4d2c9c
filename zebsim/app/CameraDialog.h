#pragma once

#include <QDialog>

class Camera;
class QLineEdit;
class QPlainTextEdit;

/// The host's own dialog for a camera: its name and comment. The camera takes them when it is accepted.
class CameraDialog : public QDialog {
    Q_OBJECT

public:
    /// `camera` must outlive the dialog.
    CameraDialog(Camera& camera, QWidget* parent);

    void accept() override;

private:
    Camera& m_camera;
    QLineEdit* m_name;
    QPlainTextEdit* m_comment;
};
