#include "SaveDialog.h"

#include "Camera.h"
#include "DialogButtons.h"
#include "DialogRun.h"
#include "GUI_AddNumberDialog.h"
#include "NameFamilies.h"
#include "PlanDialog.h"
#include "SimHost.h"
#include "TargetFields.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

SaveDialog::SaveDialog(SimHost& host, std::vector<SaveTrack> tracks, QStringList absent, QWidget* parent)
    : QDialog(parent),
      m_host(host),
      m_tracks(std::move(tracks)),
      m_absent(std::move(absent)),
      m_table(new QTableWidget(0, 4, this)),
      m_target(new TargetFields(host.prefs(), nameFamily(fileType(m_tracks.front())), true, this)),
      m_path(new QLineEdit(this)) {
    setWindowTitle(isLayout() ? uiText("Save layout") : uiText("Save"));
    m_path->setObjectName(QStringLiteral("path"));
    m_path->setReadOnly(true);
    m_path->setFocusPolicy(Qt::ClickFocus);
    auto* layout = new QVBoxLayout(this);
    addTable();
    addTracks();
    layout->addWidget(m_table);
    layout->addWidget(m_target);
    layout->addWidget(m_path);
    layout->addWidget(makeButtons());
    connect(m_target, &TargetFields::changed, this, &SaveDialog::follow);
    connect(m_table, &QTableWidget::itemChanged, this, &SaveDialog::follow);
    connect(m_table, &QTableWidget::currentItemChanged, this, &SaveDialog::showPath);
    m_target->setFocus();
    follow();
}

SaveDialog::~SaveDialog() {
    for (auto stored = m_stored.begin(); stored != m_stored.end(); ++stored) {
        m_host.prefs().assume(stored.key(), *stored);
    }
}

void SaveDialog::addTable() {
    m_table->setObjectName(QStringLiteral("cameras"));
    m_table->setHorizontalHeaderLabels(
        {uiText("Camera name"), uiText("First frame"), uiText("Last frame"), uiText("Frames")});
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_table->setMinimumSize(70 * fontMetrics().averageCharWidth(), 14 * fontMetrics().height());
    const QIcon warning = style()->standardIcon(QStyle::SP_MessageBoxWarning);
    for (const QString& line : m_absent) {
        const int row = m_table->rowCount();
        m_table->insertRow(row);
        auto* cell = new QTableWidgetItem(warning, line);
        cell->setFlags(Qt::ItemIsEnabled);
        m_table->setItem(row, 0, cell);
        m_table->setSpan(row, 0, 1, m_table->columnCount());
    }
}

/// A layout has a row for each camera, and otherwise each track one that can be left out.
void SaveDialog::addTracks() {
    for (const SaveTrack& track : m_tracks) {
        for (const SaveSource& source : track.sources) {
            const int row = m_table->rowCount();
            m_table->insertRow(row);
            auto* name = new QTableWidgetItem(track.isLayout ? source.name() : track.name);
            if (!track.isLayout) {
                name->setCheckState(Qt::Checked);
            }
            m_table->setItem(row, 0, name);
            const QList<qint64> numbers = {source.frame(0).number, source.frame(source.frames() - 1).number,
                                           source.frames()};
            for (int i = 0; i < numbers.size(); ++i) {
                auto* cell = new QTableWidgetItem(QString::number(numbers.at(i)));
                cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
                m_table->setItem(row, i + 1, cell);
            }
        }
    }
    m_table->setCurrentCell(m_absent.size(), 0);
}

QWidget* SaveDialog::makeButtons() {
    auto* buttons = addOkCancel(*this, uiText("Save"));
    m_save = qobject_cast<QPushButton*>(buttons->buttons().first());
    m_save->setDefault(true);
    auto* numbers = buttons->addButton(uiText("Numbers..."), QDialogButtonBox::ActionRole);
    numbers->setObjectName(QStringLiteral("numbers"));
    numbers->setAutoDefault(false);
    connect(numbers, &QPushButton::clicked, this, &SaveDialog::setNumbers);
    return buttons;
}

void SaveDialog::follow() {
    const std::vector<SaveTrack> chosen = chosenTracks();
    m_save->setEnabled(m_target->isComplete() && !chosen.empty());
    QStringList paths =
        chosen.empty() ? QStringList() : composedPaths(m_host, chosen, m_target->typed(), QDateTime::currentDateTime());
    m_paths.clear();
    for (std::size_t i = 0; i < m_tracks.size(); ++i) {
        m_paths.append(isChosen(i) ? paths.takeFirst() : QString());
    }
    showPath();
}

void SaveDialog::showPath() {
    m_path->setText(m_paths.value(int(shownTrack())));
}

std::size_t SaveDialog::shownTrack() const {
    return isLayout() ? 0 : std::size_t(std::max(0, m_table->currentRow() - m_absent.size()));
}

bool SaveDialog::isChosen(std::size_t track) const {
    return isLayout() || m_table->item(m_absent.size() + int(track), 0)->checkState() == Qt::Checked;
}

std::vector<SaveTrack> SaveDialog::chosenTracks() const {
    std::vector<SaveTrack> chosen;
    for (std::size_t i = 0; i < m_tracks.size(); ++i) {
        if (isChosen(i)) {
            chosen.push_back(m_tracks[i]);
        }
    }
    return chosen;
}

void SaveDialog::setNumbers() {
    // As the names reckon it.
    const int devices = m_host.cameras().deviceCount();
    const Camera* camera = m_host.cameras().find(m_tracks[shownTrack()].sources.front().key());
    const int heads = camera ? int(camera->device().heads().size()) : 1;
    const QPointer<SaveDialog> alive(this);
    const int slot = fileNameSlot(fileType(m_tracks.front()));
    runDialog(m_host, new GUI_AddNumberDialog(&m_host, slot, devices, heads, this));
    if (alive) {
        follow();
    }
}

void SaveDialog::setOption(const QString& suffix, const QVariant& value) {
    const QString key = nameFamily(fileType(m_tracks.front())) % suffix;
    if (!m_stored.contains(key)) {
        m_stored.insert(key, m_host.prefs().value(key));
    }
    m_host.prefs().assume(key, value);
    follow();
}

void SaveDialog::accept() {
    if (!m_save->isEnabled()) {
        return;
    }
    const QPointer<SaveDialog> alive(this);
    m_names = std::make_unique<NamePromises::Save>(m_host.saver().promises());
    std::optional<SavePlan> plan;
    try {
        plan = composePlan(m_host, chosenTracks(), m_absent, m_target->typed(), QDateTime::currentDateTime());
    } catch (const std::exception& e) {
        m_host.messages().tell(Message::Alert, uiText(QString::fromUtf8(e.what())), {}, this);
    }
    const bool isAgreed = plan && runDialog(m_host, new PlanDialog(*plan, this)) == QDialog::Accepted;
    if (!alive) {
        return;
    }
    if (!isAgreed) {
        m_names.reset();
        follow();
        return;
    }
    m_target->store();
    m_plan = std::move(plan);
    QDialog::accept();
}
