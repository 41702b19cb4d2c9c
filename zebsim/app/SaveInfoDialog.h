#pragma once

#include <QDialog>
#include <QList>

class Preferences;
class QComboBox;

/// Chooses what is drawn on saved images, and in which line. It is stored once the dialog is accepted.
class SaveInfoDialog : public QDialog {
    Q_OBJECT

public:
    /// `prefs` must outlive the dialog.
    SaveInfoDialog(Preferences& prefs, QWidget* parent);

    void accept() override;

private:
    Preferences& m_prefs;
    /// The line of each item, counted from 1, 0 for none.
    QList<QComboBox*> m_lines;
};

/// Chooses in which form times are drawn there, in the same way.
class TimeCodeDialog : public QDialog {
    Q_OBJECT

public:
    TimeCodeDialog(Preferences& prefs, QWidget* parent);

    void accept() override;

private:
    Preferences& m_prefs;
    QComboBox* m_form;
};
