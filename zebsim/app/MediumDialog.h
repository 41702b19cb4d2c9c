#pragma once

#include "Rig.h"

#include <QDialog>

#include <functional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class SimHost;

/// Asks for a folder that is to be put in as a storage medium.
class MediumDialog : public QDialog {
    Q_OBJECT

public:
    /// `putIn` throws with why it can't be.
    MediumDialog(std::function<void(const RigMedium&)> putIn, QWidget* parent);

    /// What can't be put in keeps the dialog open, which says why.
    void accept() override;

private:
    void browse();
    RigMedium medium() const;

    const std::function<void(const RigMedium&)> m_putIn;
    QComboBox* m_kind;
    QLineEdit* m_folder;
    QLineEdit* m_name;
    QLineEdit* m_capacity;
    QLineEdit* m_password;
    QCheckBox* m_protected;
    QLabel* m_fault;
};

/// Runs the dialog until it is closed.
void runMediumDialog(SimHost& host);
