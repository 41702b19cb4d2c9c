#pragma once

#include "GUI_QFileDialog.h"
#include "PresetLoad.h"
#include "ZebTypes.h"

#include <QList>
#include <QMap>
#include <QPixmap>

class DOC_Interface;
class QCheckBox;
class QListWidget;
class QPushButton;
class QRadioButton;

/// Where the user chooses what the cameras are to be set to: a file of settings or, in a panel that a check box brings
/// up, presets that the devices keep themselves, a row a device. It does the loading too. GUI thread.
///
/// The result is `Accepted` when something was chosen, whatever came of it; the host has told what failed. Loading runs
/// event loops, in which the dialog may go with its parent: make it on the heap.
class GUI_CameraFileDialog : public GUI_QFileDialog {
    Q_OBJECT

public:
    /// Makes the folder of settings files if it is not there. Lists the cameras that are connected now; one that does
    /// not answer is told and left out.
    GUI_CameraFileDialog(ZebHost* host, QWidget* parent);

public Q_SLOTS:
    void on_checkLoadCamera_change(bool check);
    /// Loads the file of the name that stands in the dialog; enters a folder.
    void accept() override;
    void on_ok_clicked();
    void on_cancel_clicked();

private:
    void addPanel();
    void addRows();
    void addRow(DOC_Interface& doc);
    /// What the rows say; of a row that is disabled nothing is taken.
    PresetNumbers choices() const;
    void takeName();
    QString pathOf(const QString& name) const;
    void loadFile(const QString& path);
    /// Does `work`, which the user has asked for, and ends the dialog. A failure is told.
    template <typename Work>
    void end(Work&& work);
    template <typename Work>
    void guarded(Work&& work);

    const QPixmap m_titleIcon;
    QCheckBox* const m_checkLoadCamera;
    QListWidget* const m_cameraList;
    QPushButton* const m_okButton;
    QPushButton* const m_cancelButton;
    /// Of each row; the last one stands for none.
    QMap<DOCKEY, QList<QRadioButton*>> m_rowButtons;
    bool m_accepting = false;
    bool m_ending = false;
};
