#pragma once

#include "ZebPageBridge.h"

#include <QList>
#include <QPointer>

#include <functional>

/// What a bridge is before it can do anything: its name, its view, and whether a call of the page runs. GUI thread.
class PageBridge : public ZebPageBridge {
public:
    explicit PageBridge(const QString& name, QObject* parent = nullptr);

    QString bridgeName() const override { return m_name; }
    void setView(QWebView* view) override;

    /// Whether a call runs. The bridge and its view must not be destroyed then.
    bool isInCall() const { return m_callDepth > 0; }
    /// Whether the call that runs was made inside another one, from an event loop of that.
    bool isNested() const { return m_callDepth > 1; }
    /// Runs `action` from the event loop as soon as no call runs. Forgotten if the bridge goes before.
    void afterCalls(const std::function<void()>& action);

protected:
    /// The view that holds the page; null before the host has given it and after it is gone.
    QWebView* view() const;

    /// The first of nested calls begins, the last of them has ended. Must not throw.
    virtual void beginCall() {}
    virtual void endCall() {}

private:
    friend class BridgePause;

    void enterCall();
    void leaveCall();
    void runAfterCalls();

    const QString m_name;
    QPointer<QWebView> m_view;
    int m_callDepth = 0;
    QList<std::function<void()>> m_afterCalls;
};
