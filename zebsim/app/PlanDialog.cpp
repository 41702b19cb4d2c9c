#include "PlanDialog.h"

#include "FreshKeys.h"
#include "SaveFilesModel.h"
#include "SaveFilesView.h"
#include "SaveTexts.h"
#include "SizeText.h"
#include "UiText.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// Of the entries that are seen at once.
constexpr int MostLines = 12;

QStyle::StandardPixmap iconOf(const PlanEntry& entry) {
    return entry.isBlocking()   ? QStyle::SP_MessageBoxCritical
           : entry.isQuestion() ? QStyle::SP_MessageBoxWarning
                                : QStyle::SP_MessageBoxInformation;
}

}  // namespace

PlanDialog::PlanDialog(SavePlan plan, QWidget* parent) : QDialog(parent), m_plan(std::move(plan)) {
    setWindowTitle(uiText("Files to be written"));
    auto* layout = new QVBoxLayout(this);
    auto* text = new QLabel(summary(), this);
    text->setTextFormat(Qt::PlainText);
    text->setObjectName(QStringLiteral("summary"));
    layout->addWidget(text);
    if (!m_plan.entries.isEmpty()) {
        layout->addWidget(makeEntries());
    }
    layout->addWidget(makeFiles(), 1);
    addButtons();
    setMinimumWidth(100 * fontMetrics().averageCharWidth());
}

QString PlanDialog::summary() const {
    return uiText("Files: %1, about %2").arg(QString::number(m_plan.files), sizeText(m_plan.allBytes));
}

QListWidget* PlanDialog::makeEntries() {
    auto* list = new QListWidget(this);
    list->setObjectName(QStringLiteral("entries"));
    list->setWordWrap(true);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    QList<PlanEntry> entries = m_plan.entries;
    const auto weight = [](const PlanEntry& entry) { return entry.isBlocking() ? 0 : entry.isQuestion() ? 1 : 2; };
    std::stable_sort(entries.begin(), entries.end(),
                     [&](const PlanEntry& one, const PlanEntry& two) { return weight(one) < weight(two); });
    for (const PlanEntry& entry : qAsConst(entries)) {
        list->addItem(new QListWidgetItem(style()->standardIcon(iconOf(entry)), entryText(entry)));
    }
    const int lines = qBound(2, 1 + entries.size(), MostLines);
    list->setMaximumHeight(lines * (fontMetrics().height() + 2 * list->frameWidth()) +
                           style()->pixelMetric(QStyle::PM_SmallIconSize));
    return list;
}

QTreeView* PlanDialog::makeFiles() {
    const auto state = [this](int track, int file) {
        const SaveOrders& orders = m_plan.orders;
        const SaveTrack& planned = orders.tracks[std::size_t(track)];
        const QString path = orders.fileOf(planned, planned.from + file);
        return orders.mayReplace.contains(path) ? SaveFilesModel::Replaces : SaveFilesModel::Planned;
    };
    auto* model = new SaveFilesModel(m_plan.orders, state, this);
    QStringList lines;
    for (std::size_t i = 0; i < m_plan.orders.tracks.size(); ++i) {
        lines << plannedText(m_plan, i);
    }
    model->setLines({}, lines);
    auto* files = new SaveFilesView(this);
    files->setObjectName(QStringLiteral("files"));
    files->setModel(model);
    return files;
}

void PlanDialog::addButtons() {
    auto* buttons = new QDialogButtonBox(this);
    const bool replaces = !m_plan.orders.mayReplace.isEmpty();
    auto* save =
        buttons->addButton(replaces ? uiText("Replace files and save") : uiText("Save"), QDialogButtonBox::AcceptRole);
    save->setObjectName(QStringLiteral("save"));
    save->setEnabled(m_plan.isPossible());
    auto* back = buttons->addButton(uiText("Back"), QDialogButtonBox::RejectRole);
    // What is lost by Enter must not be more than time.
    const bool asks = std::any_of(m_plan.entries.begin(), m_plan.entries.end(),
                                  [](const PlanEntry& entry) { return entry.isQuestion(); });
    (m_plan.isPossible() && !asks ? save : back)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
    takeFreshKeysOnly(*this);
}
