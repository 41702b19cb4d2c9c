#include "PageBridge.h"

#include <QTimer>
#include <QWebView>

#include <utility>

PageBridge::PageBridge(const QString& name, QObject* parent) : ZebPageBridge(parent), m_name(name) {
    setObjectName(name);
}

void PageBridge::setView(QWebView* view) {
    m_view = view;
}

QWebView* PageBridge::view() const {
    return m_view;
}

void PageBridge::enterCall() {
    if (m_callDepth++ == 0) {
        beginCall();
    }
}

void PageBridge::leaveCall() {
    if (--m_callDepth > 0) {
        return;
    }
    endCall();
    if (!m_afterCalls.isEmpty()) {
        QTimer::singleShot(0, this, &PageBridge::runAfterCalls);
    }
}

void PageBridge::afterCalls(const std::function<void()>& action) {
    m_afterCalls.append(action);
    if (!isInCall()) {
        QTimer::singleShot(0, this, &PageBridge::runAfterCalls);
    }
}

void PageBridge::runAfterCalls() {
    if (isInCall()) {
        return;  // the end of that call comes back here
    }
    // An action may destroy the bridge, and with it what the others were to act on.
    const QPointer<PageBridge> alive(this);
    const QList<std::function<void()>> actions = std::exchange(m_afterCalls, {});
    for (const std::function<void()>& action : actions) {
        if (alive) {
            action();
        }
    }
}
