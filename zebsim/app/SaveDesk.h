#pragma once

#include "BackgroundConversion.h"
#include "LastShoot.h"
#include "NamePromises.h"
#include "OverActiveWindow.h"
#include "SaveTrack.h"

#include <QPointer>
#include <QStringList>

#include <memory>
#include <optional>

class SaveJob;
class SaveProgress;
class SimHost;
struct SaveOrders;

/// Saves what the cameras have recorded, and in file mode converts what is open: asks, begins, and shows how it goes.
/// GUI thread.
class SaveDesk {
public:
    /// `host` must outlive the desk.
    explicit SaveDesk(SimHost& host);
    /// What is being saved ends there; only complete files stay.
    ~SaveDesk();

    /// Back when the user has decided. Saving goes on behind a modal progress.
    void save(bool layout);
    /// The same of the recordings of these documents alone.
    void import(const DocKeyList& keys);
    bool isSaving() const;
    /// Also in the background.
    bool isConverting() const;

private:
    /// Tells the user when a save is under way.
    bool isBusy() const;
    /// The dialog of that name, and the save that comes of it.
    void ask(const QString& name, const QString& title, const std::vector<SaveTrack>& tracks,
             const QStringList& absent);
    /// A line for each camera whose last recording can't be saved.
    QStringList absentCameras() const;
    /// Names those that are not of the last shoot so, and answers the names.
    QStringList markEarlier(SaveSources& sources) const;
    /// Nothing when there is nothing to be saved.
    std::vector<SaveTrack> tracksToSave(bool layout) const;
    void begin(const SaveOrders& orders, std::unique_ptr<NamePromises::Save> names);
    /// The plan is shown anew; the files keep their names.
    void beginAgain(const std::vector<SaveTrack>& tracks);
    void showProgress();
    void askToCancel();
    void finish();
    /// Those that a track has gone into whole.
    QStringList savedFolders() const;
    /// What was saved of cameras is converted as well, if that is chosen.
    void convertSaved();

    SimHost& m_host;
    const LastShoot m_shoot;
    std::unique_ptr<SaveJob> m_job;
    /// What the job's files are called stays its own until it has ended.
    std::unique_ptr<NamePromises::Save> m_names;
    QPointer<SaveProgress> m_progress;
    std::optional<OverActiveWindow> m_over;
    /// The save dialog stands.
    bool m_asking = false;
    BackgroundConversion m_background;
};
