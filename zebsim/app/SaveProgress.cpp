#include "SaveProgress.h"

#include "FreshKeys.h"
#include "SaveAgain.h"
#include "SaveFilesModel.h"
#include "SaveFilesView.h"
#include "SaveTexts.h"
#include "UiText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

namespace {

/// Of the bar; frames can be more than it counts.
constexpr int Steps = 1000;
/// Of a button that means something else from now on.
constexpr int RestMs = 700;

/// Frames of a track that are to be saved.
int framesOf(const SaveTrack& track) {
    return track.frames() - track.from;
}

/// Whether a file of a track stands on the disk, as far as is known by now.
SaveFilesModel::FileState stateOf(const QPointer<SaveJob>& job, int track, int file) {
    if (job.isNull() || job->isRunning()) {
        return SaveFilesModel::Planned;
    }
    for (const SaveOutcome& outcome : job->outcomes()) {
        if (outcome.track == track) {
            const bool isOne = job->orders().format.isOneFile();
            return file < (isOne ? std::min(outcome.saved, 1) : outcome.saved) ? SaveFilesModel::Written
                                                                               : SaveFilesModel::NotWritten;
        }
    }
    return SaveFilesModel::NotWritten;
}

}  // namespace

SaveProgress::SaveProgress(SaveJob& job, QWidget* parent)
    : QDialog(parent),
      m_job(&job),
      m_at(new QLabel(this)),
      m_bar(new QProgressBar(this)),
      m_model(new SaveFilesModel(
          job.orders(), [this](int track, int file) { return stateOf(m_job, track, file); }, this)),
      m_files(new SaveFilesView(this)),
      m_again(new QPushButton(uiText("Save again what failed"), this)),
      m_button(new QPushButton(uiText("Cancel"), this)) {
    setWindowTitle(uiText("Saving"));
    const auto& tracks = job.orders().tracks;
    m_frames = std::accumulate(tracks.begin(), tracks.end(), qint64(0),
                               [](qint64 sum, const SaveTrack& track) { return sum + framesOf(track); });
    addWidgets();
    connect(m_button, &QPushButton::clicked, this, &SaveProgress::press);
    connect(m_again, &QPushButton::clicked, this, &SaveProgress::again);
    connect(&job, &SaveJob::progressed, this, &SaveProgress::follow);
    connect(&job, &SaveJob::finished, this, &SaveProgress::follow);
    showCourse();
}

void SaveProgress::addWidgets() {
    m_at->setTextFormat(Qt::PlainText);
    // Enter is no wish to cancel.
    m_button->setObjectName(QStringLiteral("cancel"));
    m_button->setAutoDefault(false);
    m_button->setFocus();
    m_again->setObjectName(QStringLiteral("again"));
    m_again->setAutoDefault(false);
    m_again->hide();
    m_bar->setMaximum(Steps);
    m_files->setObjectName(QStringLiteral("outcomes"));
    m_files->setMinimumSize(100 * fontMetrics().averageCharWidth(), 12 * fontMetrics().height());
    m_files->setModel(m_model);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_again);
    buttons->addWidget(m_button);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_at);
    layout->addWidget(m_bar);
    layout->addWidget(m_files, 1);
    layout->addLayout(buttons);
    takeFreshKeysOnly(*this);
}

bool SaveProgress::isFinished() const {
    return m_job.isNull() || !m_job->isRunning();
}

QStringList SaveProgress::lines() const {
    return m_model->lines();
}

void SaveProgress::reject() {
    if (isFinished()) {
        QDialog::reject();
    }
}

void SaveProgress::press() {
    if (isFinished()) {
        reject();
    } else {
        Q_EMIT cancelWanted();
    }
}

void SaveProgress::again() {
    if (m_job && !m_job->isRunning()) {
        Q_EMIT againWanted(tracksToSaveAgain(m_job->orders(), m_job->outcomes()));
    }
}

void SaveProgress::follow() {
    if (m_job->isRunning()) {
        showCourse();
    } else {
        showOutcomes();
    }
}

void SaveProgress::showCourse() {
    const auto& tracks = m_job->orders().tracks;
    const std::vector<int> saved = m_job->done();
    const qint64 done = std::accumulate(saved.begin(), saved.end(), qint64(0));
    QStringList lines;
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        lines << uiText("%1: %2 of %3 frames")
                     .arg(tracks[i].name, QString::number(i < saved.size() ? saved[i] : 0),
                          QString::number(framesOf(tracks[i])));
    }
    m_model->setLines(m_job->orders().absent, lines);
    showShare(done);
    m_at->setText(uiText("%1 of %2 frames are written.").arg(QString::number(done), QString::number(m_frames)));
}

void SaveProgress::showShare(qint64 done) {
    m_bar->setValue(int(done * Steps / std::max<qint64>(1, m_frames)));
}

void SaveProgress::showOutcomes() {
    const QList<SaveOutcome>& outcomes = m_job->outcomes();
    QStringList before;
    QStringList lines;
    for (const SaveOutcome& outcome : outcomes) {
        (outcome.track < 0 ? before : lines) << outcomeText(outcome, m_job->orders());
    }
    m_model->setLines(before, lines);
    // A line of several rows needs its height.
    m_files->doItemsLayout();
    const bool isAllSaved = std::all_of(outcomes.begin(), outcomes.end(),
                                        [](const SaveOutcome& outcome) { return outcome.end == SaveOutcome::Saved; });
    const std::vector<int> saved = m_job->done();
    showShare(std::accumulate(saved.begin(), saved.end(), qint64(0)));
    m_at->setText(isAllSaved ? uiText("Everything is saved.") : uiText("Not everything is saved."));
    m_again->setVisible(!tracksToSaveAgain(m_job->orders(), outcomes).empty());
    m_button->setText(uiText("Close"));
    m_button->setDefault(true);
    if (!isAllSaved) {
        // Whoever was about to cancel has not seen it yet.
        m_button->setEnabled(false);
        QTimer::singleShot(RestMs, m_button, [this] {
            m_button->setEnabled(true);
            m_button->setFocus();
        });
    }
}
