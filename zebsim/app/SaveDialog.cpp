#include "SaveDialog.h"

#include "DialogButtons.h"
#include "SaveTexts.h"
#include "TargetFields.h"
#include "saving/LastShoot.h"
#include "saving/SaveTrack.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>

SaveDialog::SaveDialog(Preferences& prefs, const std::vector<SaveTrack>& tracks, const QList<AbsentCamera>& absent,
                       QWidget* parent)
    : QDialog(parent), m_target(new TargetFields(prefs, QStringLiteral("save"), true, this)) {
    setWindowTitle(tracks.front().isLayout ? uiText("Save layout") : uiText("Save"));
    auto* layout = new QVBoxLayout(this);
    QTableWidget* table = makeTable();
    addAbsent(*table, absent);
    addTracks(*table, tracks);
    layout->addWidget(table);
    layout->addWidget(m_target);
    auto* buttons = addOkCancel(*this, uiText("Save"));
    layout->addWidget(buttons);
    auto* save = qobject_cast<QPushButton*>(buttons->buttons().first());
    const auto enable = [this, save] { save->setEnabled(m_target->isComplete()); };
    connect(m_target, &TargetFields::changed, this, enable);
    enable();
    save->setDefault(true);
}

QTableWidget* SaveDialog::makeTable() {
    auto* table = new QTableWidget(0, 4, this);
    table->setObjectName(QStringLiteral("cameras"));
    table->setHorizontalHeaderLabels(
        {uiText("Camera name"), uiText("First frame"), uiText("Last frame"), uiText("Frames")});
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setFocusPolicy(Qt::NoFocus);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table->setMinimumSize(70 * fontMetrics().averageCharWidth(), 14 * fontMetrics().height());
    return table;
}

void SaveDialog::addAbsent(QTableWidget& table, const QList<AbsentCamera>& absent) {
    const QIcon warning = table.style()->standardIcon(QStyle::SP_MessageBoxWarning);
    for (const AbsentCamera& camera : absent) {
        const int row = table.rowCount();
        table.insertRow(row);
        table.setItem(row, 0, new QTableWidgetItem(warning, absentText(camera)));
        table.setSpan(row, 0, 1, table.columnCount());
    }
}

void SaveDialog::addTracks(QTableWidget& table, const std::vector<SaveTrack>& tracks) {
    for (const SaveTrack& track : tracks) {
        for (const SaveSource& source : track.sources) {
            const int row = table.rowCount();
            table.insertRow(row);
            table.setItem(row, 0, new QTableWidgetItem(source.name()));
            const QList<qint64> numbers = {source.frame(0).number, source.frame(source.frames() - 1).number,
                                           source.frames()};
            for (int i = 0; i < numbers.size(); ++i) {
                auto* cell = new QTableWidgetItem(QString::number(numbers.at(i)));
                cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
                table.setItem(row, i + 1, cell);
            }
        }
    }
}

void SaveDialog::accept() {
    m_target->store();
    QDialog::accept();
}
