#pragma once

#include "AccessibleRange.h"
#include "AccessibleText.h"

#include <QAccessible>
#include <QVariant>

class AccessiblePage;

/// An element of a page. Qt's table of interfaces holds it, and the page has it deleted; when its element has gone, it
/// is invalid.
class AccessibleElement : public QAccessibleInterface {
public:
    AccessibleElement(AccessiblePage& page, int element) : m_page(page), m_element(element) {}

    /// What the page's script tells of it, as "range".
    QVariant ask(const QString& what) const;
    void select(int start, int end);
    /// Its number in the page.
    int element() const { return m_element; }
    bool isOf(const AccessiblePage& page) const { return &m_page == &page; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text what) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

private:
    AccessiblePage& m_page;
    const int m_element;
    AccessibleRange m_range{*this};
    AccessibleText m_text{*this};
};
