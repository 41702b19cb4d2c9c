#include "AccessibleView.h"

#include "AccessiblePage.h"

#include <QWebView>

AccessibleView::AccessibleView(QWebView& view) : QAccessibleWidget(&view, QAccessible::WebDocument) {}

AccessiblePage* AccessibleView::page() const {
    return AccessiblePage::of(object());
}

int AccessibleView::elements() const {
    return page() ? page()->children(0).size() : 0;
}

QAccessibleInterface* AccessibleView::child(int index) const {
    const int before = elements();
    return index < before ? page()->childOf(0, index) : QAccessibleWidget::child(index - before);
}

int AccessibleView::childCount() const {
    return elements() + QAccessibleWidget::childCount();
}

int AccessibleView::indexOfChild(const QAccessibleInterface* child) const {
    const int element = page() ? page()->indexIn(0, child) : -1;
    const int widget = element < 0 ? QAccessibleWidget::indexOfChild(child) : -1;
    return widget < 0 ? element : widget + elements();
}

QAccessibleInterface* AccessibleView::childAt(int x, int y) const {
    QAccessibleInterface* widget = QAccessibleWidget::childAt(x, y);
    const int element = page() && !widget ? page()->at({x, y}) : 0;
    return element == 0 ? widget : page()->interface(element);
}

QAccessibleInterface* AccessibleView::focusChild() const {
    const int element = page() ? page()->focused() : 0;
    return element == 0 ? QAccessibleWidget::focusChild() : page()->interface(element);
}

QAccessible::State AccessibleView::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.focused = state.focused && (!page() || page()->focused() == 0);
    return state;
}
