#pragma once

#include <QAccessible>
#include <QHash>
#include <QObject>
#include <QTimer>
#include <QVariant>
#include <QVector>

class QWebView;

/// The page of a view as assistive technology reads it: the elements that have a role, each with one interface for as
/// long as it stands in the document. GUI thread.
///
/// Nothing is put into the page while nobody listens. Elements are known by numbers, 0 being the page itself, which
/// the view's own interface stands for.
class AccessiblePage : public QObject, private QAccessible::ActivationObserver {
    Q_OBJECT

public:
    /// `view` must outlive the object. From now on Qt's accessibility asks us for the view's interface.
    explicit AccessiblePage(QWebView& view);
    /// Deletes the interfaces of all elements.
    ~AccessiblePage() override;

    /// The page of a view of ours; null for another object, and when its page has gone.
    static AccessiblePage* of(const QObject* view);

    QWebView& view() const { return m_view; }
    /// What the page's script tells of an element, as "name". Invalid when the element has gone and while nobody
    /// listens.
    QVariant ask(const QString& what, int element);
    QVector<int> children(int element);
    /// Null when there is none.
    QAccessibleInterface* childOf(int element, int index);
    /// -1 when it is no child of the element.
    int indexIn(int element, const QAccessibleInterface* child);
    int focused();
    /// The element at a point of the screen, in pixels.
    int at(QPoint screen);
    /// Marks a part of a text box.
    void select(int element, int start, int end);

    /// Never null. It is Qt's, and goes with its element.
    QAccessibleInterface* interface(int element);
    /// Whether the interface `id` is still the one of an element that stands in the document.
    bool stands(int element, QAccessible::Id id);

public Q_SLOTS:
    /// The page's script says that it may have something to tell. It is asked for it later, out of any call of its own.
    void happened();

private:
    void accessibilityActiveChanged(bool active) override;
    void pageLoaded();
    void pageGone();
    QVariant evaluate(const QString& script);
    void report();
    void tell(const QVariantList& change);
    void tellFocus(int element);
    void forget(int element);
    void deleteGone();

    QWebView& m_view;
    bool m_listened;
    bool m_scripted = false;
    QHash<int, QAccessible::Id> m_interfaces;
    QVector<QAccessible::Id> m_gone;
    QTimer m_report;
};
