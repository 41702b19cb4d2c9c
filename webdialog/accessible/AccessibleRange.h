#pragma once

#include <QAccessible>

class AccessibleElement;

/// The number of a slider or spin box of a page, to be read. The page's own keys change it.
class AccessibleRange : public QAccessibleValueInterface {
public:
    /// `element` holds the object.
    explicit AccessibleRange(AccessibleElement& element) : m_element(element) {}

    QVariant currentValue() const override { return at(0); }
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override { return at(2); }
    QVariant minimumValue() const override { return at(1); }
    QVariant minimumStepSize() const override { return at(3); }

private:
    double at(int place) const;

    AccessibleElement& m_element;
};
