#include "SaveDesk.h"

#include "Camera.h"
#include "DialogRun.h"
#include "GUI_SaveDialog.h"
#include "HostDisk.h"
#include "InformationFile.h"
#include "JS_Mediator_SaveDialog.h"
#include "PartitionName.h"
#include "PlanDialog.h"
#include "PluginSignal.h"
#include "SaveJob.h"
#include "SaveProgress.h"
#include "SaveTargets.h"
#include "SaveTexts.h"
#include "SimHost.h"
#include "Style.h"
#include "Tal2Start.h"
#include "TextKey.h"
#include "UiText.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QTimer>
#include <QtDebug>

#include <algorithm>

namespace {

/// It is of one kind.
bool isConversion(const SaveOrders& orders) {
    return !orders.tracks.empty() && orders.tracks.front().isConversion;
}

}  // namespace

SaveDesk::SaveDesk(SimHost& host) : m_host(host), m_shoot(host.cameras(), host.events()), m_background(host) {}

SaveDesk::~SaveDesk() = default;

bool SaveDesk::isSaving() const {
    return m_job && m_job->isRunning();
}

bool SaveDesk::isConverting() const {
    return m_background.isRunning() || (isSaving() && isConversion(m_job->orders()));
}

bool SaveDesk::isBusy() const {
    const bool isBusy = isSaving() || m_asking;
    if (isBusy) {
        m_host.messages().tell(Message::Info, uiText("Images are being saved already."));
    }
    return isBusy;
}

void SaveDesk::save(bool layout) {
    if (isBusy()) {
        return;
    }
    const std::vector<SaveTrack> tracks = tracksToSave(layout);
    const QStringList absent = m_host.isFileMode() ? QStringList() : absentCameras();
    if (tracks.empty()) {
        m_host.messages().tell(
            Message::Warn,
            m_host.isFileMode() ? uiText("No recording is open.") : uiText("No connected camera has recorded images."),
            absent);
    } else if (layout) {
        ask(QStringLiteral("layoutsavedialog"), TextKey("Save layout"), tracks, absent);
    } else if (m_host.isFileMode()) {
        ask(QStringLiteral("batchconverter"), TextKey("Convert"), tracks, absent);
    } else {
        ask(QStringLiteral("savedialog"), TextKey("Save"), tracks, absent);
    }
}

void SaveDesk::import(const DocKeyList& keys) {
    if (isBusy()) {
        return;
    }
    std::vector<SaveTrack> tracks = tracksOfEach(saveSources(m_host.cameras(), keys));
    for (SaveTrack& track : tracks) {
        const Camera* camera = m_host.cameras().find(track.sources.front().key());
        // One camera may have made several.
        const QString file = camera ? camera->get(&CameraState::originalName) : QString();
        track.name = file.isEmpty() ? track.name : uiText("%1, %2").arg(track.name, file);
    }
    if (tracks.empty()) {
        m_host.messages().tell(Message::Warn, uiText("There is no recording to import."));
    } else {
        ask(QStringLiteral("savedialog"), TextKey("Import"), tracks, {});
    }
}

void SaveDesk::ask(const QString& name, const QString& title, const std::vector<SaveTrack>& tracks,
                   const QStringList& absent) {
    std::optional<SavePlan> plan;
    std::unique_ptr<NamePromises::Save> names;
    auto* dialog = new GUI_SaveDialog(m_host, title, new JS_Mediator_SaveDialog(m_host, name, tracks, absent),
                                      m_host.getMainWindow());
    QObject::connect(dialog, &QDialog::accepted, dialog, [&plan, &names, dialog] {
        plan = dialog->plan();
        names = dialog->takeNames();
    });
    m_asking = true;
    runDialog(m_host, dialog);
    m_asking = false;
    if (plan) {
        begin(plan->orders, std::move(names));
    }
}

std::vector<SaveTrack> SaveDesk::tracksToSave(bool layout) const {
    SaveSources sources = saveSources(m_host.cameras());
    if (layout) {
        // What is shown side by side is what the cameras show.
        const auto isNotShown = [this](const SaveSource& source) {
            const Camera* camera = m_host.cameras().find(source.key());
            return camera == nullptr || camera->get(&CameraState::partition) != source.partition();
        };
        sources.erase(std::remove_if(sources.begin(), sources.end(), isNotShown), sources.end());
    }
    const QStringList earlier = markEarlier(sources);
    std::vector<SaveTrack> tracks = layout ? tracksOfLayout(sources, uiText("Layout")) : tracksOfEach(sources);
    for (SaveTrack& track : tracks) {
        track.isConversion = !layout && m_host.isFileMode();
        const SaveSource& source = track.sources.front();
        const auto isOfSameCamera = [&source](const SaveSource& other) { return other.key() == source.key(); };
        if (!layout && std::count_if(sources.begin(), sources.end(), isOfSameCamera) > 1) {
            const Camera* camera = m_host.cameras().find(source.key());
            const QStringList names = camera ? camera->get(&CameraState::partitionNames) : QStringList();
            track.name = uiText("%1, %2").arg(track.name, partitionName(names, source.partition()));
        }
    }
    if (layout && !earlier.isEmpty()) {
        tracks.front().name = uiText("%1 with %2").arg(tracks.front().name, earlier.join(QStringLiteral(", ")));
    }
    return tracks;
}

QStringList SaveDesk::absentCameras() const {
    QStringList lines;
    for (const AbsentCamera& camera : m_shoot.absent()) {
        lines << absentText(camera);
    }
    return lines + m_host.recorder().lost();
}

QStringList SaveDesk::markEarlier(SaveSources& sources) const {
    QStringList marked;
    for (SaveSource& source : sources) {
        if (!m_shoot.isEarlier(source.recording())) {
            continue;
        }
        source.setName(uiText("%1 (earlier recording)").arg(source.name()));
        marked << source.name();
    }
    return marked;
}

void SaveDesk::begin(const SaveOrders& orders, std::unique_ptr<NamePromises::Save> names) {
    m_job = std::make_unique<SaveJob>(m_host.cameras(), orders);
    m_names = std::move(names);
    QObject::connect(m_job.get(), &SaveJob::finished, m_job.get(), [this] { finish(); });
    showProgress();
    m_job->start();
}

void SaveDesk::beginAgain(const std::vector<SaveTrack>& tracks) {
    SaveOrders orders = m_job->orders();
    orders.tracks = tracks;
    orders.mayReplace.clear();
    orders.diskFault = diskFaultOf(m_host);
    std::vector<TrackTarget> targets;
    for (const SaveTrack& track : tracks) {
        const QFileInfo stem(track.stem);
        targets.push_back({stem.path(), {}, {}, stem.fileName()});
    }
    SavePlan plan;
    try {
        HostDisk disk(m_host.shelf(), m_host.cameras());
        plan = planOf(std::move(orders), targets, disk);
    } catch (const std::exception& e) {
        m_host.messages().tell(Message::Alert, uiText(QString::fromUtf8(e.what())), {}, m_progress);
        return;
    }
    const QPointer<SaveProgress> alive(m_progress);
    m_asking = true;
    const int answer = runDialog(m_host, new PlanDialog(plan, m_progress));
    m_asking = false;
    if (answer == QDialog::Accepted && alive) {
        begin(plan.orders, std::move(m_names));
    }
}

void SaveDesk::showProgress() {
    const HostCalls::Own own;
    // Nobody has closed the last one's list of results.
    delete m_progress;
    m_progress = new SaveProgress(*m_job, m_host.getMainWindow());
    if (isConversion(m_job->orders())) {
        m_progress->setWindowTitle(uiText("Converting"));
    }
    QObject::connect(m_progress, &SaveProgress::cancelWanted, m_progress, [this] { askToCancel(); });
    QObject::connect(m_progress, &SaveProgress::againWanted, m_progress, [this](const std::vector<SaveTrack>& tracks) {
        // The button has had its click by then, for its dialog goes.
        QTimer::singleShot(0, m_progress, [this, tracks] { beginAgain(tracks); });
    });
    m_progress->setAttribute(Qt::WA_DeleteOnClose);
    m_progress->setModal(true);
    applyNativeStyle(m_host, *m_progress);
    m_over.emplace(*m_progress);
    QObject::connect(m_progress, &QDialog::finished, m_progress, [this] {
        m_over.reset();
        m_names.reset();
    });
    m_progress->show();
}

void SaveDesk::askToCancel() {
    const int answer = m_host.messages().choose(
        uiText("Stop saving? Complete files stay."), m_progress,
        {{QMessageBox::Yes, uiText("Stop")}, {QMessageBox::No, uiText("Go on")}}, QMessageBox::No);
    if (answer == QMessageBox::Yes && isSaving()) {
        m_job->cancel();
    }
}

void SaveDesk::finish() {
    for (const SaveOutcome& outcome : m_job->outcomes()) {
        const QString text = outcomeText(outcome, m_job->orders());
        (outcome.end == SaveOutcome::Saved ? qInfo() : qWarning()) << text;
    }
    const SaveOrders& orders = m_job->orders();
    const QList<SaveOutcome>& outcomes = m_job->outcomes();
    const bool isCancelled = std::any_of(outcomes.begin(), outcomes.end(), [](const SaveOutcome& outcome) {
        return outcome.end == SaveOutcome::Cancelled;
    });
    const bool isOfCameras =
        !isCancelled && !orders.tracks.empty() && !orders.tracks.front().isLayout && !isConversion(orders);
    if (isOfCameras) {
        handOverToTal2(m_host, savedFolders());
        convertSaved();
    }
    m_host.updates().request();
    // A plug-in that has asked while images were saved has not started its timer.
    sendToPlugins(m_host.appStatus(), "signalStartAutoUpdate");
}

QStringList SaveDesk::savedFolders() const {
    QStringList folders;
    for (const SaveOutcome& outcome : m_job->outcomes()) {
        if (outcome.track >= 0 && outcome.end == SaveOutcome::Saved) {
            folders << QFileInfo(m_job->orders().tracks[std::size_t(outcome.track)].stem).path();
        }
    }
    folders.removeDuplicates();
    return folders;
}

void SaveDesk::convertSaved() {
    if (!m_host.prefs().value(QStringLiteral("export/backgroundconverting")).toBool()) {
        return;
    }
    QStringList paths;
    for (const SaveOutcome& outcome : m_job->outcomes()) {
        if (outcome.track >= 0 && outcome.end == SaveOutcome::Saved) {
            paths << informationPath(m_job->orders().tracks[std::size_t(outcome.track)].stem);
        }
    }
    m_background.convert(paths);
}
