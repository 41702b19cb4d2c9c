#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

class QMenu;

/// Chooses in context menus as a scenario orders. A menu without an order is left, and counts as unanswerable. GUI
/// thread.
class PopupScripting : public QObject {
    Q_OBJECT

public:
    explicit PopupScripting(QObject* parent = nullptr);

    /// The text of an entry of the next menu; a null text leaves it.
    void order(const QString& text) { m_orders.append(text); }
    /// Menus without an order stand.
    void leaveRestToUser() { m_hasUser = true; }
    bool isOrderLeft() const { return !m_orders.isEmpty(); }

    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    void unanswerable(const QString& text);

private:
    void serve(QMenu& menu);

    QStringList m_orders;
    bool m_hasUser = false;
};
