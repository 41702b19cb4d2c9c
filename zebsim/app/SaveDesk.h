#pragma once

#include "FileNames.h"
#include "LastShoot.h"
#include "OverActiveWindow.h"
#include "SaveSource.h"

#include <QPointer>
#include <QStringList>

#include <memory>
#include <optional>

class SaveJob;
class SaveProgress;
class SimHost;
enum class Overwrite;
struct SaveOrders;

/// Saves what the cameras have recorded: asks, begins, and shows how it goes. GUI thread.
class SaveDesk {
public:
    /// `host` must outlive the desk.
    explicit SaveDesk(SimHost& host);
    /// What is being saved ends there; only complete files stay.
    ~SaveDesk();

    /// Back when the user has decided. Saving goes on behind a modal progress.
    void save(bool layout);
    bool isSaving() const;

private:
    /// A line for each camera whose last recording can't be saved.
    QStringList absentCameras() const;
    /// Names those that are not of the last shoot so, and answers the names.
    QStringList markEarlier(SaveSources& sources) const;
    void begin(const SaveOrders& orders);
    void showProgress();
    Overwrite ask(const QString& file);
    void askToCancel();
    void finish();

    SimHost& m_host;
    const LastShoot m_shoot;
    FileNames m_fileNames;
    std::unique_ptr<SaveJob> m_job;
    QPointer<SaveProgress> m_progress;
    std::optional<OverActiveWindow> m_over;
    /// The save dialog stands.
    bool m_asking = false;
};
