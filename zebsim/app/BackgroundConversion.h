#pragma once

#include "NamePromises.h"
#include "ZebTypes.h"

#include <QStringList>

#include <deque>
#include <memory>
#include <vector>

class SaveJob;
class SimHost;
struct SavePlan;
struct SaveTrack;

/// Converts what was just saved while the user works on, as is chosen for conversions. Nobody is asked: what would
/// replace a file fails. How it went stands in the log, and in a notice. GUI thread.
class BackgroundConversion {
public:
    /// `host` must outlive the object.
    explicit BackgroundConversion(SimHost& host);
    /// What is being converted ends there; only complete files stay.
    ~BackgroundConversion();

    /// Those recordings of which these files tell, after those before.
    void convert(const QStringList& paths);
    bool isRunning() const { return m_job != nullptr; }

private:
    void begin(const QStringList& paths);
    /// One camera may have made several, and one name may stand in several folders.
    void nameByFiles(std::vector<SaveTrack>& tracks) const;
    /// Leaves out of the plan what can't be written, or would replace something.
    void dropRefused(SavePlan& plan);
    void finish();
    void tell();

    SimHost& m_host;
    std::deque<QStringList> m_waiting;
    DocKeyList m_keys;
    std::unique_ptr<NamePromises::Save> m_names;
    std::unique_ptr<SaveJob> m_job;
    /// Of this time: how many there were, and a line for each that was not converted.
    int m_recordings = 0;
    QStringList m_failures;
};
