#include "SaveDialog.h"

#include "DialogButtons.h"
#include "SaveNames.h"
#include "SaveTrack.h"
#include "TargetFields.h"

#include <QDialogButtonBox>
#include <QDirIterator>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

/// A folder of very many files would hold up every key typed.
constexpr int MostCounted = 1000;

}  // namespace

SaveDialog::SaveDialog(Preferences& prefs, const std::vector<SaveTrack>& tracks, const QStringList& absent,
                       QWidget* parent)
    : QDialog(parent),
      m_target(new TargetFields(prefs, QStringLiteral("save"), true, this)),
      m_notice(new QWidget(this)),
      m_files(new QLabel(m_notice)) {
    setWindowTitle(tracks.front().isLayout ? uiText("Save layout") : uiText("Save"));
    auto* layout = new QVBoxLayout(this);
    QTableWidget* table = makeTable();
    addAbsent(*table, absent);
    addTracks(*table, tracks);
    layout->addWidget(table);
    layout->addWidget(m_target);
    fillNotice();
    layout->addWidget(m_notice);
    auto* buttons = addOkCancel(*this, uiText("Save"));
    layout->addWidget(buttons);
    m_save = qobject_cast<QPushButton*>(buttons->buttons().first());
    m_save->setDefault(true);
    connect(m_target, &TargetFields::changed, this, &SaveDialog::follow);
    follow();
}

void SaveDialog::fillNotice() {
    auto* layout = new QHBoxLayout(m_notice);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_files, 1);
    auto* button = new QPushButton(uiText("New subfolder"), m_notice);
    button->setObjectName(QStringLiteral("newSubfolder"));
    button->setAutoDefault(false);
    layout->addWidget(button);
    connect(button, &QPushButton::clicked, this,
            [this] { m_target->setFolder(newSubfolder(m_target->folder(), QDateTime::currentDateTime())); });
    // The dialog keeps its size.
    QSizePolicy policy = m_notice->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_notice->setSizePolicy(policy);
}

void SaveDialog::follow() {
    m_save->setEnabled(m_target->isComplete());
    int files = 0;
    QDirIterator folder(m_target->folder(), QDir::Files);
    while (m_target->isComplete() && files < MostCounted && folder.hasNext()) {
        folder.next();
        ++files;
    }
    const QString count = QString::number(files) + (files == MostCounted ? QStringLiteral("+") : QString());
    m_files->setText(uiText("Files that are in this folder already: %1").arg(count));
    m_notice->setVisible(files > 0);
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

void SaveDialog::addAbsent(QTableWidget& table, const QStringList& absent) {
    const QIcon warning = table.style()->standardIcon(QStyle::SP_MessageBoxWarning);
    for (const QString& line : absent) {
        const int row = table.rowCount();
        table.insertRow(row);
        table.setItem(row, 0, new QTableWidgetItem(warning, line));
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
