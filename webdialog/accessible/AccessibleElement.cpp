#include "AccessibleElement.h"

#include "AccessiblePage.h"
#include "AccessibleRole.h"
#include "AccessibleState.h"

#include <QWebView>

QVariant AccessibleElement::ask(const QString& what) const {
    return m_page.ask(what, m_element);
}

void AccessibleElement::select(int start, int end) {
    m_page.select(m_element, start, end);
}

bool AccessibleElement::isValid() const {
    return m_page.stands(m_element, QAccessible::uniqueId(const_cast<AccessibleElement*>(this)));
}

QWindow* AccessibleElement::window() const {
    return m_page.view().window()->windowHandle();
}

QAccessibleInterface* AccessibleElement::parent() const {
    return m_page.interface(ask(QStringLiteral("parent")).toInt());
}

QAccessibleInterface* AccessibleElement::child(int index) const {
    return m_page.childOf(m_element, index);
}

int AccessibleElement::childCount() const {
    return m_page.children(m_element).size();
}

int AccessibleElement::indexOfChild(const QAccessibleInterface* child) const {
    return m_page.indexIn(m_element, child);
}

QAccessibleInterface* AccessibleElement::childAt(int x, int y) const {
    return m_page.interface(m_page.at({x, y}));
}

QAccessibleInterface* AccessibleElement::focusChild() const {
    return m_page.interface(m_page.focused());
}

QString AccessibleElement::text(QAccessible::Text what) const {
    switch (what) {
        case QAccessible::Name:
            return ask(QStringLiteral("name")).toString();
        case QAccessible::Description:
            return ask(QStringLiteral("description")).toString();
        case QAccessible::Value:
            return ask(QStringLiteral("value")).toString();
        default:
            return {};
    }
}

QRect AccessibleElement::rect() const {
    const QVariantList box = ask(QStringLiteral("rect")).toList();
    const QRectF inPage(box.value(0).toDouble(), box.value(1).toDouble(), box.value(2).toDouble(),
                        box.value(3).toDouble());
    return inPage.toRect().translated(m_page.view().mapToGlobal(QPoint()));
}

QAccessible::Role AccessibleElement::role() const {
    return accessibleRole(ask(QStringLiteral("role")).toString());
}

QAccessible::State AccessibleElement::state() const {
    QAccessible::State state = accessibleState(ask(QStringLiteral("states")).toString().split(QLatin1Char(' ')));
    state.invalid = !isValid();
    return state;
}

void* AccessibleElement::interface_cast(QAccessible::InterfaceType type) {
    const QAccessible::Role is = role();
    if (type == QAccessible::ValueInterface &&
        (is == QAccessible::Slider || is == QAccessible::SpinBox || is == QAccessible::ProgressBar)) {
        return static_cast<QAccessibleValueInterface*>(&m_range);
    }
    if (type == QAccessible::TextInterface && (is == QAccessible::EditableText || is == QAccessible::ComboBox)) {
        return static_cast<QAccessibleTextInterface*>(&m_text);
    }
    return nullptr;
}
