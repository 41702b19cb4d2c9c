#include "SaveProgress.h"

#include "SaveJob.h"
#include "SaveTexts.h"
#include "UiText.h"

#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// Of the bar; frames can be more than it counts.
constexpr int Steps = 1000;

}  // namespace

SaveProgress::SaveProgress(SaveJob& job, QWidget* parent)
    : QDialog(parent),
      m_job(&job),
      m_at(new QLabel(this)),
      m_bar(new QProgressBar(this)),
      m_lines(new QListWidget(this)),
      m_button(new QPushButton(uiText("Cancel"), this)) {
    setWindowTitle(uiText("Saving"));
    m_at->setTextFormat(Qt::PlainText);
    // A long name must not make it wider.
    m_at->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    // Enter is no wish to cancel.
    m_button->setAutoDefault(false);
    m_button->setFocus();
    m_lines->setObjectName(QStringLiteral("outcomes"));
    m_lines->setWordWrap(true);
    m_lines->setSelectionMode(QAbstractItemView::NoSelection);
    m_lines->setMinimumSize(80 * fontMetrics().averageCharWidth(), 10 * fontMetrics().height());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_at);
    layout->addWidget(m_bar);
    layout->addWidget(m_lines);
    layout->addWidget(m_button, 0, Qt::AlignRight);
    for (const SaveTrack& track : job.orders().tracks) {
        m_frames += track.frames();
    }
    m_bar->setMaximum(Steps);
    connect(m_button, &QPushButton::clicked, this, &SaveProgress::press);
    connect(&job, &SaveJob::progressed, this, &SaveProgress::follow);
    connect(&job, &SaveJob::finished, this, &SaveProgress::follow);
    showFrame();
}

bool SaveProgress::isFinished() const {
    return m_job.isNull() || !m_job->isRunning();
}

QStringList SaveProgress::lines() const {
    QStringList lines;
    for (int row = 0; row < m_lines->count(); ++row) {
        lines << m_lines->item(row)->text();
    }
    return lines;
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

void SaveProgress::follow() {
    const QList<SaveOutcome>& outcomes = m_job->outcomes();
    while (m_lines->count() < outcomes.size()) {
        m_lines->addItem(outcomeText(outcomes.at(m_lines->count()), m_job->orders()));
        m_lines->scrollToBottom();
    }
    if (m_job->isRunning()) {
        showFrame();
        return;
    }
    const bool isAllSaved = std::all_of(outcomes.begin(), outcomes.end(),
                                        [](const SaveOutcome& outcome) { return outcome.end == SaveOutcome::Saved; });
    if (isAllSaved) {
        m_bar->setValue(m_bar->maximum());
    }
    m_at->setText(isAllSaved ? uiText("Everything is saved.") : uiText("Not everything is saved."));
    m_button->setText(uiText("Close"));
    m_button->setDefault(true);
}

void SaveProgress::showFrame() {
    const auto& tracks = m_job->orders().tracks;
    const std::size_t number = m_job->trackNumber();
    qint64 done = m_job->frame();
    for (std::size_t i = 0; i < number; ++i) {
        done += tracks[i].frames();
    }
    m_bar->setValue(int(done * Steps / m_frames));
    m_at->setText(uiText("%1 of %2: %3, frame %4 of %5")
                      .arg(QString::number(number + 1), QString::number(tracks.size()), m_job->track().name,
                           QString::number(m_job->frame()), QString::number(m_job->track().frames())));
}
