#include "MenuInput.h"

#include "ScenarioError.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStringList>

namespace {

QString shownText(const QAction& action) {
    // Before the tab stands the text, behind it a key.
    return action.text().section(QLatin1Char('\t'), 0, 0).remove(QLatin1Char('&'));
}

/// What an entry says, and whether it is greyed, may be settled when its menu opens.
QList<QAction*> opened(QMenu& menu) {
    Q_EMIT menu.aboutToShow();
    return menu.actions();
}

}  // namespace

QAction& findEntry(const QList<QAction*>& actions, const QString& text) {
    QStringList present;
    for (QAction* action : actions) {
        if (!action->isVisible() || action->isSeparator()) {
            continue;
        }
        if (shownText(*action) == text) {
            if (!action->isEnabled()) {
                const QString why = action->statusTip();
                throw ScenarioError(QStringLiteral("the entry \"%1\" is greyed").arg(text) %
                                    (why.isEmpty() ? why : QString(QLatin1String(": ") % why)));
            }
            return *action;
        }
        present.append(shownText(*action));
    }
    throw ScenarioError(
        QStringLiteral("there is no entry \"%1\", but %2").arg(text, present.join(QStringLiteral(", "))));
}

void chooseEntry(const QMainWindow& window, const QString& path) {
    if (QApplication::activeModalWidget() != nullptr) {
        throw ScenarioError(QStringLiteral("a modal dialog stands before the menus"));
    }
    QList<QAction*> actions = window.menuBar()->actions();
    const QStringList texts = path.split(QStringLiteral(" > "));
    for (const QString& text : texts) {
        QAction& action = findEntry(actions, text);
        if (action.menu() == nullptr) {
            action.trigger();
            return;
        }
        actions = opened(*action.menu());
    }
    throw ScenarioError(QStringLiteral("\"%1\" is a menu and no entry").arg(path));
}
