#pragma once

#include <qaccessiblewidget.h>

class AccessiblePage;
class QWebView;

/// A view, with the elements of its page that have no other around them as children, and then its widgets. Qt deletes
/// it with the view; it has no elements any more once the page has gone.
class AccessibleView : public QAccessibleWidget {
public:
    explicit AccessibleView(QWebView& view);

    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QAccessible::State state() const override;

private:
    AccessiblePage* page() const;
    int elements() const;
};
