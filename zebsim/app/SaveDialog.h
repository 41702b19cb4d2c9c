#pragma once

#include "NamePromises.h"
#include "SaveTargets.h"

#include <QDialog>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

class QLineEdit;
class QPushButton;
class QTableWidget;
class SimHost;
class TargetFields;

/// What is to be saved, each recording with its range, and where to; and above, what can't be saved, a line each. Save
/// shows the plan; once that is agreed to, folder and format are stored as preferences and the dialog is accepted.
class SaveDialog : public QDialog {
    Q_OBJECT

public:
    /// `host` must outlive the dialog.
    SaveDialog(SimHost& host, std::vector<SaveTrack> tracks, QStringList absent, QWidget* parent);
    ~SaveDialog() override;

    /// Once accepted: the plan, and what keeps its names from other saves.
    const SavePlan& plan() const { return *m_plan; }
    std::unique_ptr<NamePromises::Save> takeNames() { return std::move(m_names); }

    /// Until the dialog goes, a preference of the family that it saves by.
    void setOption(const QString& suffix, const QVariant& value);

    void accept() override;

private:
    void addTable();
    void addTracks();
    QWidget* makeButtons();
    /// What is typed, ticked or stored has changed.
    void follow();
    void showPath();
    void setNumbers();
    bool isChosen(std::size_t track) const;
    std::vector<SaveTrack> chosenTracks() const;
    /// Number of the one that the table's current row stands for.
    std::size_t shownTrack() const;
    bool isLayout() const { return m_tracks.front().isLayout; }

    SimHost& m_host;
    const std::vector<SaveTrack> m_tracks;
    const QStringList m_absent;
    QTableWidget* m_table;
    TargetFields* m_target;
    /// Where the first file of each track would go, empty for one without a tick; and that of the shown one.
    QStringList m_paths;
    QLineEdit* m_path;
    QPushButton* m_save;
    /// What the preferences were that `setOption` has set.
    TypedPrefs m_stored;
    std::optional<SavePlan> m_plan;
    std::unique_ptr<NamePromises::Save> m_names;
};
