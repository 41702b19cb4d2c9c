#include "CameraDialog.h"

#include "Camera.h"
#include "CameraBank.h"
#include "DialogButtons.h"
#include "UiText.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>

CameraDialog::CameraDialog(const CameraBank& cameras, const Camera& camera, QWidget* parent)
    : QDialog(parent),
      m_cameras(cameras),
      m_key(camera.key()),
      m_name(new QLineEdit(camera.name(), this)),
      m_comment(new QPlainTextEdit(this)) {
    setWindowTitle(uiText("Camera"));
    m_name->setObjectName(QStringLiteral("name"));
    m_comment->setObjectName(QStringLiteral("comment"));
    m_comment->setPlainText(
        camera.get(&CameraState::comment).replace(QLatin1String(zeb::CommentSeparator), QLatin1String("\n")));
    m_comment->setTabChangesFocus(true);
    auto* form = new QFormLayout(this);
    form->addRow(uiText("Name"), m_name);
    form->addRow(uiText("Comment"), m_comment);
    form->addRow(addOkCancel(*this));
    m_name->selectAll();
}

void CameraDialog::accept() {
    Camera* camera = m_cameras.find(m_key);
    if (camera == nullptr) {
        return reject();
    }
    camera->set(&CameraState::name, m_name->text());
    camera->set(&CameraState::comment,
                m_comment->toPlainText().replace(QLatin1Char('\n'), QLatin1String(zeb::CommentSeparator)));
    QDialog::accept();
}

void CameraDialog::follow() {
    if (m_cameras.find(m_key) == nullptr) {
        reject();
    }
}
