#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QWebView;
class ZebPageBridge;

/// The bridges that stand in pages. Views and bridges may die at any time. GUI thread.
class BridgeDesk : public QObject {
public:
    /// Gives `bridge` its view and keeps it in the view's page, also as "prefs".
    void attach(QWebView* view, ZebPageBridge* bridge);

    struct Attached {
        QPointer<QWebView> view;
        QPointer<ZebPageBridge> bridge;
        bool loaded = false;
    };
    /// Those whose page has loaded, in the order of attaching.
    QList<Attached> loaded();

private:
    void setLoaded(const QWebView* view, bool loaded);

    QList<Attached> m_attached;
};
