#include "PopupScripting.h"

#include "MenuInput.h"
#include "ScenarioError.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QTest>
#include <QTimer>

PopupScripting::PopupScripting(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

bool PopupScripting::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Show && object->isWidgetType()) {
        if (auto* menu = qobject_cast<QMenu*>(object)) {
            // By then it runs its event loop.
            QTimer::singleShot(0, this, [this, menu = QPointer<QMenu>(menu)] {
                if (menu && menu->isVisible() && QApplication::activePopupWidget() == menu) {
                    serve(*menu);
                }
            });
        }
    }
    return QObject::eventFilter(object, event);
}

void PopupScripting::serve(QMenu& menu) {
    if (m_hasUser && m_orders.isEmpty()) {
        return;
    }
    try {
        if (m_orders.isEmpty()) {
            throw ScenarioError(QStringLiteral("a context menu stands, and there is no zeb.popup for it"));
        }
        const QString text = m_orders.takeFirst();
        if (text.isNull()) {
            menu.close();
            return;
        }
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&findEntry(menu.actions(), text)).center());
    } catch (const ScenarioError& e) {
        menu.close();
        Q_EMIT unanswerable(e.text());
    }
}
