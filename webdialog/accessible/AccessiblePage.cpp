#include "AccessiblePage.h"

#include "AccessibleElement.h"
#include "AccessibleView.h"
#include "ElementChange.h"
#include "PageReaderScript.h"

#include <QWebElement>
#include <QWebFrame>
#include <QWebView>

#include <utility>

namespace {

QHash<const QObject*, AccessiblePage*>& pages() {
    static QHash<const QObject*, AccessiblePage*> pages;
    return pages;
}

/// Asked for each object of the program: the views of ours alone are ours, for another half of it has its own.
QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    const AccessiblePage* page = AccessiblePage::of(object);
    return page ? new AccessibleView(page->view()) : nullptr;
}

}  // namespace

AccessiblePage::AccessiblePage(QWebView& view) : m_view(view), m_listened(QAccessible::isActive()) {
    pages().insert(&view, this);
    // The engine's own factory answers for every object. The last one is asked first, and the view has brought that.
    QAccessible::installFactory(makeInterface);
    QAccessible::installActivationObserver(this);
    m_report.setSingleShot(true);
    connect(&m_report, &QTimer::timeout, this, &AccessiblePage::report);
    connect(&view, &QWebView::loadFinished, this, &AccessiblePage::pageLoaded);
    connect(view.page()->mainFrame(), &QWebFrame::javaScriptWindowObjectCleared, this, &AccessiblePage::pageGone);
}

AccessiblePage::~AccessiblePage() {
    QAccessible::removeActivationObserver(this);
    pages().remove(&m_view);
    if (pages().isEmpty()) {
        QAccessible::removeFactory(makeInterface);
    }
    pageGone();
    deleteGone();
}

AccessiblePage* AccessiblePage::of(const QObject* view) {
    return pages().value(view);
}

void AccessiblePage::accessibilityActiveChanged(bool active) {
    m_listened = active;
    if (active) {
        happened();
    } else if (m_scripted) {
        evaluate(QStringLiteral("pageReader.stop()"));
        pageGone();
    }
}

void AccessiblePage::pageLoaded() {
    if (m_listened) {
        happened();
    }
}

void AccessiblePage::pageGone() {
    m_scripted = false;
    for (const int element : m_interfaces.keys()) {
        forget(element);
    }
}

QVariant AccessiblePage::evaluate(const QString& script) {
    QWebFrame& frame = *m_view.page()->mainFrame();
    // A document that has only begun has nothing to be told of.
    if (!m_scripted && (!m_listened || frame.documentElement().isNull())) {
        return {};
    }
    if (!m_scripted) {
        frame.addToJavaScriptWindowObject(QStringLiteral("pageReaderEvents"), this);
        frame.evaluateJavaScript(QString::fromUtf16(PageReaderScript));
        m_scripted = true;
    }
    return frame.evaluateJavaScript(script);
}

QVariant AccessiblePage::ask(const QString& what, int element) {
    return evaluate(QStringLiteral("pageReader.ask('%1', %2)").arg(what, QString::number(element)));
}

QVector<int> AccessiblePage::children(int element) {
    QVector<int> children;
    for (const QVariant& child : ask(QStringLiteral("children"), element).toList()) {
        children.append(child.toInt());
    }
    return children;
}

QAccessibleInterface* AccessiblePage::childOf(int element, int index) {
    const QVector<int> all = children(element);
    return index >= 0 && index < all.size() ? interface(all.at(index)) : nullptr;
}

int AccessiblePage::indexIn(int element, const QAccessibleInterface* child) {
    const auto* own = dynamic_cast<const AccessibleElement*>(child);
    return own && own->isOf(*this) ? children(element).indexOf(own->element()) : -1;
}

int AccessiblePage::focused() {
    return evaluate(QStringLiteral("pageReader.focused()")).toInt();
}

int AccessiblePage::at(QPoint screen) {
    const QPoint point = m_view.mapFromGlobal(screen);
    return evaluate(QStringLiteral("pageReader.at(%1, %2)").arg(point.x()).arg(point.y())).toInt();
}

void AccessiblePage::select(int element, int start, int end) {
    evaluate(QStringLiteral("pageReader.select(%1, %2, %3)").arg(element).arg(start).arg(end));
}

QAccessibleInterface* AccessiblePage::interface(int element) {
    if (element == 0) {
        return QAccessible::queryAccessibleInterface(&m_view);
    }
    if (QAccessibleInterface* known = QAccessible::accessibleInterface(m_interfaces.value(element))) {
        return known;
    }
    auto* made = new AccessibleElement(*this, element);
    m_interfaces.insert(element, QAccessible::registerAccessibleInterface(made));
    return made;
}

bool AccessiblePage::stands(int element, QAccessible::Id id) {
    return m_interfaces.value(element) == id && ask(QStringLiteral("role"), element).isValid();
}

void AccessiblePage::happened() {
    m_report.start(0);
}

void AccessiblePage::report() {
    deleteGone();
    for (const QVariant& change : evaluate(QStringLiteral("pageReader.changes()")).toList()) {
        tell(change.toList());
    }
    deleteGone();
}

void AccessiblePage::tell(const QVariantList& change) {
    const QString what = change.at(0).toString();
    const int element = change.at(1).toInt();
    if (what == QLatin1String("gone")) {
        forget(element);
    } else if (what == QLatin1String("focus")) {
        tellFocus(element);
    } else if (what == QLatin1String("announce")) {
        // A notification that shows is read out wherever the reader is.
        tellEvent(*interface(element), QAccessible::ObjectShow);
    } else {
        tellChange(*interface(element), what, change.at(2).toString(), change.at(3).toString());
    }
}

void AccessiblePage::tellFocus(int element) {
    if (element != 0 || m_view.hasFocus()) {
        tellEvent(*interface(element), QAccessible::Focus);
    }
}

void AccessiblePage::forget(int element) {
    if (m_interfaces.contains(element)) {
        // One of them may be what asks just now.
        m_gone.append(m_interfaces.take(element));
        happened();
    }
}

void AccessiblePage::deleteGone() {
    for (const QAccessible::Id id : std::exchange(m_gone, {})) {
        QAccessible::deleteAccessibleInterface(id);
    }
}
