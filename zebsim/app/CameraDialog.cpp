#include "CameraDialog.h"

#include "UiText.h"
#include "camera/Camera.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>

CameraDialog::CameraDialog(Camera& camera, QWidget* parent)
    : QDialog(parent),
      m_camera(camera),
      m_name(new QLineEdit(camera.name(), this)),
      m_comment(new QPlainTextEdit(this)) {
    setWindowTitle(uiText("Camera"));
    m_name->setObjectName(QStringLiteral("name"));
    m_comment->setObjectName(QStringLiteral("comment"));
    m_comment->setPlainText(
        camera.get(&CameraState::comment).replace(QLatin1String(zeb::CommentSeparator), QLatin1String("\n")));
    m_comment->setTabChangesFocus(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &CameraDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CameraDialog::reject);
    auto* form = new QFormLayout(this);
    form->addRow(uiText("Name"), m_name);
    form->addRow(uiText("Comment"), m_comment);
    form->addRow(buttons);
    m_name->selectAll();
}

void CameraDialog::accept() {
    m_camera.set(&CameraState::name, m_name->text());
    m_camera.set(&CameraState::comment,
                 m_comment->toPlainText().replace(QLatin1Char('\n'), QLatin1String(zeb::CommentSeparator)));
    QDialog::accept();
}
