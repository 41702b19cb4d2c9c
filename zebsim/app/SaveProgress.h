#pragma once

#include <QDialog>
#include <QPointer>

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
class SaveJob;

/// Shows how far a save has come, and a line for each camera once it has its outcome. While the job runs, its only
/// button asks to cancel it, and nothing closes the dialog; then the button does.
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

private:
    void press();
    void follow();
    void showFrame();

    QPointer<SaveJob> m_job;
    QLabel* m_at;
    QProgressBar* m_bar;
    QListWidget* m_lines;
    QPushButton* m_button;
    /// Of all tracks.
    qint64 m_frames = 0;
};
