#pragma once

#include "HostWindows.h"

#include <QDialog>

class QLabel;
class QLineEdit;

/// Asks for the password of a medium until the right one was typed.
class PasswordDialog : public QDialog {
    Q_OBJECT

public:
    PasswordDialog(const QString& medium, HostWindows::PasswordTest fits, QWidget* parent);

    /// A wrong password keeps the dialog open, which says so.
    void accept() override;

private:
    const HostWindows::PasswordTest m_fits;
    QLineEdit* m_password;
    QLabel* m_fault;
};

/// Asks for a new password of a medium, twice, and for the one that it has.
class NewPasswordDialog : public QDialog {
    Q_OBJECT

public:
    /// `fits` knows the old password; without it there is none.
    NewPasswordDialog(const QString& medium, HostWindows::PasswordTest fits, QWidget* parent);

    /// The new one; empty: it is to have none.
    QString password() const;
    /// A wrong old password, or two new ones that differ, keep the dialog open, which says so.
    void accept() override;

private:
    const HostWindows::PasswordTest m_fits;
    QLineEdit* m_old;
    QLineEdit* m_new;
    QLineEdit* m_again;
    QLabel* m_fault;
};
