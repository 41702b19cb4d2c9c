#include "host/WaitingMessages.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

void WaitingMessages::add(const QString& text) {
    QMetaObject::invokeMethod(
        this,
        [this, text] {
            m_texts.append(text);
            showAll();
        },
        Qt::QueuedConnection);
}

void WaitingMessages::showAll() {
    while (!m_texts.isEmpty()) {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            modal->installEventFilter(this);
            return;
        }
        m_show(m_texts.takeFirst());
    }
}

bool WaitingMessages::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide) {
        watched->removeEventFilter(this);
        // By a timer, which leaves the event loop of the dialog the time to end.
        QTimer::singleShot(0, this, &WaitingMessages::showAll);
    }
    return QObject::eventFilter(watched, event);
}
