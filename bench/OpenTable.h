#pragma once

#include "PluginLoader.h"
#include "PluginSlot.h"

#include <QVariant>

class QWebView;
class SimHost;

/// The plug-in's library in the host, and the table that it opens; gone with this. GUI thread.
class OpenTable {
public:
    /// Loads the library only.
    explicit OpenTable(SimHost& host);

    void open() { m_slot.open(); }
    /// Null until the table is open.
    QWebView* view() const;
    QVariant evaluate(const QString& script) const;
    /// Until the page has drawn rows on the tab of `element` and nothing more is owed to it. Throws
    /// `std::runtime_error` when that does not come.
    void waitForRows(const QString& element) const;
    /// Until the live control has drawn rows.
    void showLiveControl() const;

private:
    SimHost& m_host;
    PluginLoader m_library;
    PluginSlot m_slot;
};
