#include "PasswordDialogs.h"

#include "DialogButtons.h"
#include "UiText.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include <utility>

namespace {

QLineEdit* hiddenLine(QDialog& dialog, const char* name) {
    auto* line = new QLineEdit(&dialog);
    line->setObjectName(QLatin1String(name));
    line->setEchoMode(QLineEdit::Password);
    return line;
}

QLabel* faultLabel(QDialog& dialog) {
    auto* label = new QLabel(&dialog);
    label->setObjectName(QStringLiteral("fault"));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* nameLabel(QDialog& dialog, const QString& medium) {
    auto* label = new QLabel(medium, &dialog);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

void complain(QLabel& label, const QString& fault, QLineEdit& line) {
    label.setText(fault);
    line.selectAll();
    line.setFocus();
}

}  // namespace

PasswordDialog::PasswordDialog(const QString& medium, HostWindows::PasswordTest fits, QWidget* parent)
    : QDialog(parent), m_fits(std::move(fits)), m_password(hiddenLine(*this, "password")), m_fault(faultLabel(*this)) {
    setWindowTitle(uiText("Password"));
    auto* form = new QFormLayout(this);
    form->addRow(uiText("Medium"), nameLabel(*this, medium));
    form->addRow(uiText("Password"), m_password);
    form->addRow(m_fault);
    form->addRow(addOkCancel(*this));
    m_password->setFocus();
}

void PasswordDialog::accept() {
    if (m_fits(m_password->text())) {
        QDialog::accept();
    } else {
        complain(*m_fault, uiText("The password is wrong."), *m_password);
    }
}

NewPasswordDialog::NewPasswordDialog(const QString& medium, HostWindows::PasswordTest fits, QWidget* parent)
    : QDialog(parent),
      m_fits(std::move(fits)),
      m_old(hiddenLine(*this, "old")),
      m_new(hiddenLine(*this, "new")),
      m_again(hiddenLine(*this, "again")),
      m_fault(faultLabel(*this)) {
    setWindowTitle(uiText("Set password"));
    auto* form = new QFormLayout(this);
    form->addRow(uiText("Medium"), nameLabel(*this, medium));
    m_old->setVisible(bool(m_fits));
    if (m_fits) {
        form->addRow(uiText("Old password"), m_old);
    }
    form->addRow(uiText("New password"), m_new);
    form->addRow(uiText("Once more"), m_again);
    m_new->setPlaceholderText(m_fits ? uiText("Empty: no password any more") : QString());
    form->addRow(m_fault);
    form->addRow(addOkCancel(*this));
    (m_fits ? m_old : m_new)->setFocus();
}

QString NewPasswordDialog::password() const {
    return m_new->text();
}

void NewPasswordDialog::accept() {
    if (m_fits && !m_fits(m_old->text())) {
        complain(*m_fault, uiText("The old password is wrong."), *m_old);
    } else if (m_new->text() != m_again->text()) {
        complain(*m_fault, uiText("The two new passwords differ."), *m_again);
    } else if (!m_fits && m_new->text().isEmpty()) {
        complain(*m_fault, uiText("The password is empty."), *m_new);
    } else {
        QDialog::accept();
    }
}
