#pragma once

#include <QObject>
#include <QString>

class QWebView;

/// What the host knows of an object that stands in a page. GUI thread only.
///
/// `ZebHost::attachBridge` gives it its view once, before the page loads; then, each time the page's window
/// object is cleared, puts it into the page as `bridgeName()` and asks it to add itself as `prefs`. A page may have
/// several, of which one adds itself.
class ZebPageBridge : public QObject {
public:
    using QObject::QObject;

    /// Name under which the page sees the bridge; never empty.
    virtual QString bridgeName() const = 0;
    /// The view that holds the page; not owned. It outlives the bridge's last call.
    virtual void setView(QWebView* view) = 0;
    /// Adds the bridge to the main frame of its view under the name "prefs".
    virtual void addPrefsJSObject() = 0;
    /// Emits the bridge's signal `update`.
    virtual void raiseUpdate() = 0;
};
