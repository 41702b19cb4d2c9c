#pragma once

#include <QWebPage>

class ZebHost;

/// A page that lives from resources alone: it reaches no network, follows no link away and opens no window.
/// What its scripts write to the console, their errors too, goes to the log. GUI thread.
class GUI_WebPage : public QWebPage {
    Q_OBJECT

public:
    explicit GUI_WebPage(ZebHost* host, QObject* parent = nullptr);

protected:
    /// The host's widget for an `object` element: the image area for "mdi", else the panel of a plug-in. Null for
    /// an unknown class id and for a plug-in that is not there.
    QObject* createPlugin(const QString& classid, const QUrl& url, const QStringList& paramNames,
                          const QStringList& paramValues) override;
    bool acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request, NavigationType type) override;

private:
    void keepFromSockets(QWebFrame* frame);
    void logConsoleMessage(MessageSource source, MessageLevel level, const QString& message, int line,
                           const QString& sourceId);

    ZebHost* const m_host;
};
