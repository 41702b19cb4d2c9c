#pragma once

#include "JS_Mediator_FileDialog.h"
#include "SaveTrack.h"

#include <QStringList>

#include <vector>

class SimHost;

/// What the page that saves can ask and do: the recordings as they stood when it was opened, whatever has become of
/// their cameras. GUI thread.
class JS_Mediator_SaveDialog : public JS_Mediator_FileDialog {
    Q_OBJECT

public:
    /// `name` tells the family of options, as "savedialog"; `tracks` is not empty. `absent` is what can't be saved, a
    /// line each.
    JS_Mediator_SaveDialog(SimHost& host, const QString& name, std::vector<SaveTrack> tracks, QStringList absent);

    const QStringList& absent() const { return m_absent; }
    /// Those that the page has ticked; a layout of the cameras that it has.
    std::vector<SaveTrack> chosenTracks() const;

Q_SIGNALS:
    /// What is ticked is to be saved.
    void saveWanted();

public Q_SLOTS:
    /// With a record for each recording also when its camera is `gone`, and for each line of what is `absent`. A record
    /// has its `label` in lists, which begins with that of the `camera`, and numbers of the `first` and the `last`
    /// frame of its range.
    QString list(bool temporary = false) override;
    /// JSON with the `frames` of all pictures, and their `bytes` before they are written.
    QString getTotals();
    void save();

protected:
    /// Names go by the recording, as those of the plan.
    std::unique_ptr<NamedDocument> namedDocument(DOCKEY key, PARTITIONNUMBER partition) override;

private:
    QJsonArray records(const QJsonArray& ofCameras) const;

    SimHost& m_simHost;
    const std::vector<SaveTrack> m_tracks;
    const QStringList m_absent;
};
