#include "ElementChange.h"

#include "AccessibleState.h"

#include <QStringList>

void tellEvent(QAccessibleInterface& element, QAccessible::Event kind) {
    QAccessibleEvent event(&element, kind);
    QAccessible::updateAccessibility(&event);
}

namespace {

void tellStates(QAccessibleInterface& element, const QString& before, const QString& now) {
    const QAccessible::State is = accessibleState(now.split(QLatin1Char(' ')));
    const QAccessible::State changed = difference(accessibleState(before.split(QLatin1Char(' '))), is);
    QAccessibleStateChangeEvent event(&element, changed);
    QAccessible::updateAccessibility(&event);
    if (changed.selected) {
        tellEvent(element, is.selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
    }
}

/// The part that was replaced alone, for a reader speaks it.
void tellText(QAccessibleInterface& element, const QString& before, const QString& now) {
    const int shorter = qMin(before.size(), now.size());
    int same = 0;
    while (same < shorter && before.at(same) == now.at(same)) {
        ++same;
    }
    int sameAtEnd = 0;
    while (sameAtEnd < shorter - same &&
           before.at(before.size() - 1 - sameAtEnd) == now.at(now.size() - 1 - sameAtEnd)) {
        ++sameAtEnd;
    }
    const QString removed = before.mid(same, before.size() - same - sameAtEnd);
    const QString inserted = now.mid(same, now.size() - same - sameAtEnd);
    QAccessibleTextUpdateEvent event(&element, same, removed, inserted);
    QAccessible::updateAccessibility(&event);
}

void tellValue(QAccessibleInterface& element, const QString& before, const QString& now) {
    if (element.role() == QAccessible::EditableText) {
        tellText(element, before, now);
        return;
    }
    QAccessibleValueChangeEvent event(&element, now);
    QAccessible::updateAccessibility(&event);
}

void tellSelection(QAccessibleInterface& element, const QString& now) {
    const QStringList ends = now.split(QLatin1Char(' '));
    QAccessibleTextSelectionEvent event(&element, ends.value(0).toInt(), ends.value(1).toInt());
    QAccessible::updateAccessibility(&event);
    QAccessibleTextCursorEvent cursor(&element, ends.value(1).toInt());
    QAccessible::updateAccessibility(&cursor);
}

}  // namespace

void tellChange(QAccessibleInterface& element, const QString& what, const QString& before, const QString& now) {
    if (what == QLatin1String("name")) {
        tellEvent(element, QAccessible::NameChanged);
    } else if (what == QLatin1String("description")) {
        tellEvent(element, QAccessible::DescriptionChanged);
    } else if (what == QLatin1String("value")) {
        tellValue(element, before, now);
    } else if (what == QLatin1String("selection")) {
        tellSelection(element, now);
    } else {
        tellStates(element, before, now);
    }
}
