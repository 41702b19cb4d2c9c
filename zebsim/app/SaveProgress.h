#pragma once

#include <QDialog>
#include <QPointer>

#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;
class SaveFilesModel;
class SaveFilesView;
class SaveJob;
struct SaveTrack;

/// Shows how far a save has come, and a line for each camera with its outcome in the end; below a line stand its files.
/// While the job runs, its button asks to cancel it, and nothing closes the dialog; then the button does, and another
/// one saves again what failed.
class SaveProgress : public QDialog {
    Q_OBJECT

public:
    /// Follows `job`, which need not outlive the dialog.
    SaveProgress(SaveJob& job, QWidget* parent);

    bool isFinished() const;
    /// The lines so far.
    QStringList lines() const;

    void reject() override;

Q_SIGNALS:
    void cancelWanted();
    /// Of a save that has ended: these are to be saved from where they stopped.
    void againWanted(const std::vector<SaveTrack>& tracks);

private:
    void addWidgets();
    void press();
    void again();
    void follow();
    void showCourse();
    void showShare(qint64 done);
    void showOutcomes();

    QPointer<SaveJob> m_job;
    QLabel* m_at;
    QProgressBar* m_bar;
    SaveFilesModel* m_model;
    SaveFilesView* m_files;
    QPushButton* m_again;
    QPushButton* m_button;
    /// Of all tracks.
    qint64 m_frames = 0;
};
