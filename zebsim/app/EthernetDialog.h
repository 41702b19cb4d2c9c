#pragma once

#include <QDialog>

class CameraBank;
class Preferences;
class QLineEdit;

/// How the cameras are reached: a line for each device, and where the search for cameras begins.
class EthernetDialog : public QDialog {
    Q_OBJECT

public:
    /// `prefs` must outlive the dialog.
    EthernetDialog(const CameraBank& cameras, Preferences& prefs, QWidget* parent);

    /// Stores the address of the search; one that is none keeps the dialog open and is shown as wrong.
    void accept() override;

private:
    QWidget* makeTable(const CameraBank& cameras);

    Preferences& m_prefs;
    QLineEdit* m_search;
};
