#include "BarKey.h"

#include "UiText.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QShortcut>
#include <QToolBar>
#include <QToolTip>
#include <QtDebug>

BarKey::BarKey(QToolBar& bar, const QString& text, const QKeySequence& key, std::function<QString()> refusal)
    : m_action(bar.addAction(text)), m_refusal(std::move(refusal)) {
    m_action->setToolTip(text % QStringLiteral(" (") % key.toString(QKeySequence::NativeText) % QLatin1Char(')'));
    // A key of the action itself would do nothing, and show nothing, while the action is disabled.
    auto* shortcut = new QShortcut(key, &bar);
    shortcut->setContext(Qt::ApplicationShortcut);
    shortcut->setAutoRepeat(false);
    shortcut->setWhatsThis(text);
    connect(shortcut, &QShortcut::activated, this, &BarKey::press);
    connect(m_action, &QAction::triggered, this, &BarKey::press);
}

void BarKey::refresh() {
    m_action->setEnabled(m_refusal().isEmpty());
}

void BarKey::press() {
    const QString why = m_refusal();
    if (why.isEmpty()) {
        Q_EMIT pressed();
    } else {
        refuse(why);
    }
}

void BarKey::refuse(const QString& why) const {
    const QString text = uiText("%1: not done. %2").arg(m_action->text(), why);
    qInfo() << "[USER]" << text;
    QWidget* window = QApplication::activeWindow();
    if (window == nullptr) {
        return;
    }
    QToolTip::showText(window->mapToGlobal(QPoint(window->width() / 2, window->height() / 3)), text, window);
}
