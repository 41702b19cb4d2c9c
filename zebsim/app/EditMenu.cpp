#include "EditMenu.h"

#include "SimHost.h"
#include "UiText.h"

#include <QMenu>

namespace {

/// What is to be read holds no keys.
QString entryText(const QString& what, const QString& step) {
    return step.isEmpty() ? what : QString(what % QStringLiteral(": ") % step).replace('&', QLatin1String("&&"));
}

}  // namespace

EditMenu::EditMenu(SimHost& host, QMenu& menu)
    : QObject(&menu),
      m_host(host),
      m_undo(menu.addAction(QString(), this, [this] { choose(&SimUndo::undo); })),
      m_redo(menu.addAction(QString(), this, [this] { choose(&SimUndo::redo); })) {
    m_undo->setObjectName(QStringLiteral("undo"));
    m_redo->setObjectName(QStringLiteral("redo"));
    connect(&menu, &QMenu::aboutToShow, this, &EditMenu::refresh);
    connect(&host.events(), &HostEvents::updateFinished, this, &EditMenu::refresh);
    refresh();
}

void EditMenu::choose(QString (SimUndo::*work)()) {
    try {
        (m_host.undo().*work)();
    } catch (const std::exception& failure) {
        m_host.messages().tellFailure(failure);
    }
}

void EditMenu::refresh() {
    const QString undo = m_host.undo().undoText();
    const QString redo = m_host.undo().redoText();
    m_undo->setText(entryText(uiText("Undo"), undo));
    m_redo->setText(entryText(uiText("Redo"), redo));
    m_undo->setEnabled(!undo.isEmpty());
    m_redo->setEnabled(!redo.isEmpty());
}
