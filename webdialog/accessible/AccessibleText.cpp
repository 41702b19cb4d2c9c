#include "AccessibleText.h"

#include "AccessibleElement.h"

void AccessibleText::selection(int, int* start, int* end) const {
    const QStringList marked = m_element.ask(QStringLiteral("selection")).toString().split(QLatin1Char(' '));
    *start = marked.value(0).toInt();
    *end = marked.value(1).toInt();
}

int AccessibleText::selectionCount() const {
    int start = 0;
    int end = 0;
    selection(0, &start, &end);
    return start == end ? 0 : 1;
}

void AccessibleText::addSelection(int start, int end) {
    m_element.select(start, end);
}

void AccessibleText::removeSelection(int) {
    setCursorPosition(cursorPosition());
}

void AccessibleText::setSelection(int, int start, int end) {
    m_element.select(start, end);
}

int AccessibleText::cursorPosition() const {
    int start = 0;
    int end = 0;
    selection(0, &start, &end);
    return end;
}

void AccessibleText::setCursorPosition(int position) {
    m_element.select(position, position);
}

QString AccessibleText::text() const {
    return m_element.text(QAccessible::Value);
}

QString AccessibleText::text(int start, int end) const {
    return text().mid(start, end < 0 ? -1 : end - start);
}

int AccessibleText::characterCount() const {
    return text().size();
}

QRect AccessibleText::characterRect(int) const {
    return m_element.rect();
}

QString AccessibleText::attributes(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}
