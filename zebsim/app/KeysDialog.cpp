#include "KeysDialog.h"

#include "UiText.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include <vector>

namespace {

struct Key {
    QKeySequence sequence;
    QString work;
};

QString plainText(const QAction& action) {
    return action.text().remove(QLatin1Char('&'));
}

void addEntries(const QList<QAction*>& actions, std::vector<Key>& keys) {
    for (const QAction* action : actions) {
        for (const QKeySequence& sequence : action->shortcuts()) {
            keys.push_back({sequence, plainText(*action)});
        }
        if (action->menu() != nullptr) {
            addEntries(action->menu()->actions(), keys);
        }
    }
}

std::vector<Key> keysOf(const QMainWindow& window) {
    std::vector<Key> keys;
    const QList<QShortcut*> shortcuts = window.findChildren<QShortcut*>();
    for (const QShortcut* shortcut : shortcuts) {
        if (!shortcut->whatsThis().isEmpty()) {
            keys.push_back({shortcut->key(), shortcut->whatsThis()});
        }
    }
    const QList<QAction*> menus = window.menuBar()->actions();
    addEntries(menus, keys);
    for (const QAction* menu : menus) {
        const QKeySequence sequence = QKeySequence::mnemonic(menu->text());
        if (!sequence.isEmpty()) {
            keys.push_back({sequence, uiText("Menu %1").arg(plainText(*menu))});
        }
    }
    return keys;
}

QTableWidget* listOf(const std::vector<Key>& keys, QWidget* parent) {
    auto* list = new QTableWidget(int(keys.size()), 2, parent);
    list->setHorizontalHeaderLabels({uiText("Key"), uiText("Does")});
    list->verticalHeader()->hide();
    list->horizontalHeader()->setStretchLastSection(true);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    for (int row = 0; row < list->rowCount(); ++row) {
        const Key& key = keys.at(std::size_t(row));
        list->setItem(row, 0, new QTableWidgetItem(key.sequence.toString(QKeySequence::NativeText)));
        list->setItem(row, 1, new QTableWidgetItem(key.work));
    }
    list->resizeColumnToContents(0);
    return list;
}

}  // namespace

KeysDialog::KeysDialog(QMainWindow& window) : QDialog(&window) {
    setWindowTitle(uiText("Keys"));
    auto* note = new QLabel(uiText("F1 in the table lists the keys of the table."), this);
    note->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(uiText("OK"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &KeysDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(listOf(keysOf(window), this));
    layout->addWidget(note);
    layout->addWidget(buttons);
    resize(60 * fontMetrics().averageCharWidth(), 32 * fontMetrics().lineSpacing());
}
