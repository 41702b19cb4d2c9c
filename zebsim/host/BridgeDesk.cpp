#include "BridgeDesk.h"

#include "ZebPageBridge.h"

#include <QWebFrame>
#include <QWebPage>
#include <QWebView>

void BridgeDesk::attach(QWebView* view, ZebPageBridge* bridge) {
    bridge->setView(view);
    m_attached.append({view, bridge});
    connect(view, &QWebView::loadStarted, this, [this, view] { setLoaded(view, false); });
    connect(view, &QWebView::loadFinished, this, [this, view] { setLoaded(view, true); });

    QWebFrame* frame = view->page()->mainFrame();
    connect(frame, &QWebFrame::javaScriptWindowObjectCleared, bridge, [frame, bridge] {
        frame->addToJavaScriptWindowObject(bridge->bridgeName(), bridge, QWebFrame::QtOwnership);
        bridge->addPrefsJSObject();
    });
}

void BridgeDesk::setLoaded(const QWebView* view, bool loaded) {
    for (Attached& attached : m_attached) {
        if (attached.view == view) {
            attached.loaded = loaded;
        }
    }
}

QList<BridgeDesk::Attached> BridgeDesk::loaded() {
    QList<Attached> loaded;
    for (auto attached = m_attached.begin(); attached != m_attached.end();) {
        if (!attached->view || !attached->bridge) {
            attached = m_attached.erase(attached);
            continue;
        }
        if (attached->loaded) {
            loaded.append(*attached);
        }
        ++attached;
    }
    return loaded;
}
