#pragma once

#include <QDialog>

#include <vector>

class Preferences;
class TargetFields;
struct SaveTrack;

/// What is to be saved, each camera with its range, and where to. Save stores folder and format as preferences.
class SaveDialog : public QDialog {
    Q_OBJECT

public:
    /// `prefs` must outlive the dialog.
    SaveDialog(Preferences& prefs, const std::vector<SaveTrack>& tracks, QWidget* parent);

    void accept() override;

private:
    QWidget* makeTable(const std::vector<SaveTrack>& tracks);

    TargetFields* m_target;
};
