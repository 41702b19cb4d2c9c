#pragma once

#include <QAccessible>

class AccessibleElement;

/// What stands in a text or drop-down box of a page, to be read and marked. The page's own keys change it.
class AccessibleText : public QAccessibleTextInterface {
public:
    /// `element` holds the object.
    explicit AccessibleText(AccessibleElement& element) : m_element(element) {}

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    /// The box's: the engine tells no place of a letter.
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int* start, int* end) const override;

private:
    QString text() const;

    AccessibleElement& m_element;
};
