#include "SaveDesk.h"

#include "DialogRun.h"
#include "PluginSignal.h"
#include "SaveDialog.h"
#include "SaveJob.h"
#include "SaveProgress.h"
#include "SaveTexts.h"
#include "SimHost.h"
#include "Style.h"
#include "UiText.h"

#include <QDir>
#include <QMessageBox>
#include <QtDebug>

SaveDesk::SaveDesk(SimHost& host)
    : m_host(host), m_shoot(host.cameras(), host.events()), m_fileNames({uiText("Layout")}) {}

SaveDesk::~SaveDesk() = default;

bool SaveDesk::isSaving() const {
    return m_job && m_job->isRunning();
}

void SaveDesk::save(bool layout) {
    if (isSaving() || m_asking) {
        m_host.messages().tell(Message::Info, uiText("Images are being saved already."));
        return;
    }
    SaveSources sources = saveSources(m_host.cameras(), m_fileNames);
    const QStringList earlier = markEarlier(sources);
    auto tracks = layout ? tracksOfLayout(sources, uiText("Layout")) : tracksOfEach(sources);
    if (layout && !earlier.isEmpty()) {
        tracks.front().name = uiText("%1 with %2").arg(tracks.front().name, earlier.join(QStringLiteral(", ")));
    }
    const QStringList absent = absentCameras();
    if (tracks.empty()) {
        m_host.messages().tell(Message::Warn, uiText("No connected camera has recorded images."), absent);
        return;
    }
    Preferences& prefs = m_host.prefs();
    m_asking = true;
    const int answer = runDialog(m_host, new SaveDialog(prefs, tracks, absent, m_host.getMainWindow()));
    m_asking = false;
    if (answer != QDialog::Accepted) {
        return;
    }
    begin({prefs.value(QStringLiteral("save/folder")).toString(),
           saveFormat(prefs.value(QStringLiteral("save/format")).toString()), tracks,
           [this](const QString& file) { return ask(file); }, VideoEncoder::installed(), absent});
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

void SaveDesk::begin(const SaveOrders& orders) {
    auto job = std::make_unique<SaveJob>(m_host.cameras(), orders);
    if (const auto refusal = job->start()) {
        m_host.messages().tell(Message::Alert, refusalText(*refusal, orders));
        return;
    }
    m_job = std::move(job);
    QObject::connect(m_job.get(), &SaveJob::finished, m_job.get(), [this] { finish(); });
    showProgress();
}

void SaveDesk::showProgress() {
    const HostCalls::Own own;
    // Nobody has closed the last one's list of results.
    delete m_progress;
    m_progress = new SaveProgress(*m_job, m_host.getMainWindow());
    QObject::connect(m_progress, &SaveProgress::cancelWanted, m_progress, [this] { askToCancel(); });
    m_progress->setAttribute(Qt::WA_DeleteOnClose);
    m_progress->setModal(true);
    applyNativeStyle(m_host, *m_progress);
    m_over.emplace(*m_progress);
    QObject::connect(m_progress, &QDialog::finished, m_progress, [this] { m_over.reset(); });
    m_progress->show();
}

Overwrite SaveDesk::ask(const QString& file) {
    const int answer =
        m_host.messages().choose(uiText("%1 exists already.").arg(QDir::toNativeSeparators(file)), m_progress,
                                 {{QMessageBox::Yes, uiText("Overwrite")},
                                  {QMessageBox::YesToAll, uiText("Overwrite all")},
                                  {QMessageBox::No, uiText("Skip camera")},
                                  {QMessageBox::Cancel, uiText("Cancel")}},
                                 QMessageBox::No);
    switch (answer) {
        case QMessageBox::Yes:
            return Overwrite::This;
        case QMessageBox::YesToAll:
            return Overwrite::All;
        case QMessageBox::No:
            return Overwrite::SkipCamera;
        default:
            return Overwrite::Cancel;
    }
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
    m_host.updates().request();
    // A plug-in that has asked while images were saved has not started its timer.
    sendToPlugins(m_host.appStatus(), "signalStartAutoUpdate");
}
