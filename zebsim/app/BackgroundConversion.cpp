#include "BackgroundConversion.h"

#include "Camera.h"
#include "SaveJob.h"
#include "SaveTargets.h"
#include "SaveTexts.h"
#include "SimHost.h"
#include "UiText.h"

#include <QDir>
#include <QtDebug>

#include <algorithm>

BackgroundConversion::BackgroundConversion(SimHost& host) : m_host(host) {}

BackgroundConversion::~BackgroundConversion() = default;

void BackgroundConversion::convert(const QStringList& paths) {
    if (!paths.isEmpty()) {
        m_waiting.push_back(paths);
    }
    while (!isRunning() && !m_waiting.empty()) {
        const QStringList next = m_waiting.front();
        m_waiting.pop_front();
        begin(next);
    }
}

void BackgroundConversion::begin(const QStringList& paths) {
    const FileDocs::Opened opened = m_host.docManager().files().open(paths, true);
    m_recordings = paths.size();
    m_failures = opened.faults;
    m_keys = opened.keys;
    std::vector<SaveTrack> tracks = tracksOfEach(saveSources(m_host.cameras(), m_keys));
    nameByFiles(tracks);
    if (tracks.empty()) {
        tell();
        return;
    }
    m_names = std::make_unique<NamePromises::Save>(m_host.saver().promises());
    try {
        SavePlan plan = composePlan(m_host, tracks, {}, QDateTime::currentDateTime());
        dropRefused(plan);
        m_job = std::make_unique<SaveJob>(m_host.cameras(), plan.orders);
    } catch (const std::exception& e) {
        m_failures << uiText(QString::fromUtf8(e.what()));
        tell();
        return;
    }
    QObject::connect(m_job.get(), &SaveJob::finished, m_job.get(), [this] { finish(); });
    m_job->start();
    m_host.updates().request();
}

void BackgroundConversion::nameByFiles(std::vector<SaveTrack>& tracks) const {
    QStringList names;
    QStringList paths;
    for (const SaveTrack& track : tracks) {
        const Camera* camera = m_host.cameras().find(track.sources.front().key());
        names << (camera ? camera->get(&CameraState::originalName) : track.name);
        paths << (camera ? QDir::toNativeSeparators(camera->get(&CameraState::sourceFile)) : track.name);
    }
    for (int i = 0; i < names.size(); ++i) {
        SaveTrack& track = tracks[std::size_t(i)];
        track.name = names.count(names[i]) > 1 ? paths[i] : names[i];
        track.isConversion = true;
    }
}

void BackgroundConversion::dropRefused(SavePlan& plan) {
    std::vector<SaveTrack>& tracks = plan.orders.tracks;
    for (const PlanEntry& entry : qAsConst(plan.entries)) {
        if (!entry.isBlocking() && !entry.isQuestion()) {
            continue;
        }
        m_failures << (entry.kind == PlanEntry::Exists ? uiText("%1: %2 exists already").arg(entry.camera, entry.path)
                                                       : entryText(entry));
        const auto isRefused = [&entry](const SaveTrack& track) {
            return entry.camera.isEmpty() || track.name == entry.camera;
        };
        tracks.erase(std::remove_if(tracks.begin(), tracks.end(), isRefused), tracks.end());
    }
    plan.orders.mayReplace.clear();
    plan.orders.absent.clear();
}

void BackgroundConversion::finish() {
    for (const SaveOutcome& outcome : m_job->outcomes()) {
        const QString text = outcomeText(outcome, m_job->orders());
        if (outcome.end == SaveOutcome::Saved) {
            qInfo() << "In the background:" << text;
        } else {
            m_failures << text;
        }
    }
    // It is at its last signal.
    m_job.release()->deleteLater();
    tell();
    convert({});
}

void BackgroundConversion::tell() {
    m_names.reset();
    m_host.docManager().files().close(m_keys);
    m_keys.clear();
    for (const QString& failure : qAsConst(m_failures)) {
        qWarning() << "In the background:" << failure;
    }
    const QString all = uiText("Recordings were converted: %1").arg(m_recordings);
    const QString some = uiText("Not all of %1 recordings were converted:").arg(m_recordings);
    m_host.messages().notify(
        m_failures.isEmpty() ? Message::Info : Message::Warn,
        m_failures.isEmpty() ? all : QString(some % QLatin1Char('\n') % m_failures.join(QLatin1Char('\n'))));
}
