#pragma once

#include <QDialog>
#include <QStringList>

#include <vector>

class Preferences;
class QLabel;
class QPushButton;
class QTableWidget;
class TargetFields;
struct SaveTrack;

/// What is to be saved, each camera with its range, and where to; and above, what can't be saved, a line each.
/// A folder with files in it is told of, and another one offered. Save stores folder
/// and format as preferences.
class SaveDialog : public QDialog {
    Q_OBJECT

public:
    /// `prefs` must outlive the dialog.
    SaveDialog(Preferences& prefs, const std::vector<SaveTrack>& tracks, const QStringList& absent, QWidget* parent);

    void accept() override;

private:
    QTableWidget* makeTable();
    static void addAbsent(QTableWidget& table, const QStringList& absent);
    static void addTracks(QTableWidget& table, const std::vector<SaveTrack>& tracks);

    void fillNotice();
    void follow();

    TargetFields* m_target;
    /// The files that are in the folder already, and the way to another one; hidden when there are none.
    QWidget* m_notice;
    QLabel* m_files;
    QPushButton* m_save;
};
