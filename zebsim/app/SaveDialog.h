#pragma once

#include <QDialog>
#include <QList>

#include <vector>

class Preferences;
class QTableWidget;
class TargetFields;
struct AbsentCamera;
struct SaveTrack;

/// What is to be saved, each camera with its range, and where to; and above, what can't be saved. Save stores folder
/// and format as preferences.
class SaveDialog : public QDialog {
    Q_OBJECT

public:
    /// `prefs` must outlive the dialog.
    SaveDialog(Preferences& prefs, const std::vector<SaveTrack>& tracks, const QList<AbsentCamera>& absent,
               QWidget* parent);

    void accept() override;

private:
    QTableWidget* makeTable();
    static void addAbsent(QTableWidget& table, const QList<AbsentCamera>& absent);
    static void addTracks(QTableWidget& table, const std::vector<SaveTrack>& tracks);

    TargetFields* m_target;
};
