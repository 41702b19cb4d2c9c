#include "GUI_WebPage.h"

#include "PLG_Interface.h"
#include "PageNetwork.h"
#include "ZebAppStatus.h"
#include "ZebHost.h"

#include <QDebug>
#include <QHash>
#include <QNetworkRequest>
#include <QWebFrame>

namespace {

/// Name of the plug-in whose panel stands for a class id; empty when there is none.
QString panelPlugin(const QString& classid) {
    static const QHash<QString, QString> plugins{
        {QStringLiteral("histogram"), QStringLiteral("histogram")},
        {QStringLiteral("lineprofile"), QStringLiteral("lineprofile")},
        {QStringLiteral("lut"), QStringLiteral("lut")},
        {QStringLiteral("sensorlut"), QStringLiteral("m_sensorlut")},
        {QStringLiteral("livecontrol_hwimage_trigger_histogram"), QStringLiteral("livecontrol")},
        {QStringLiteral("livecontrol_auto_exposure_histogram"), QStringLiteral("livecontrol")},
        {QStringLiteral("imagetrigger_histogram"), QStringLiteral("imagetrigger")},
        {QStringLiteral("analoggain"), QStringLiteral("m_analoggain")},
        {QStringLiteral("focuscheck"), QStringLiteral("m_focuscheck")},
        {QStringLiteral("colorcorrection_histgram"), QStringLiteral("colorcorrection")},
    };
    return plugins.value(classid);
}

/// Sockets reach the network by a way of their own, and a worker has sockets that no page can take from it.
void takeSocketsAway(QWebFrame* frame) {
    frame->evaluateJavaScript(
        QStringLiteral("delete window.WebSocket; delete window.Worker; delete window.SharedWorker;"));
}

bool isOwnPage(const QUrl& url) {
    return url.scheme() == QLatin1String("qrc") || url == QUrl(QStringLiteral("about:blank"));
}

bool isWithinDocument(const QWebFrame* frame, const QUrl& url) {
    return url.hasFragment() && url.matches(frame->url(), QUrl::RemoveFragment);
}

}  // namespace

GUI_WebPage::GUI_WebPage(ZebHost* host, QObject* parent) : QWebPage(parent), m_host(host) {
    setNetworkAccessManager(new PageNetwork(this));
    keepFromSockets(mainFrame());
    connect(this, &QWebPage::frameCreated, this, &GUI_WebPage::keepFromSockets);
    connect(this, &QWebPage::consoleMessageReceived, this, &GUI_WebPage::logConsoleMessage);
}

void GUI_WebPage::keepFromSockets(QWebFrame* frame) {
    connect(frame, &QWebFrame::javaScriptWindowObjectCleared, this, [frame] { takeSocketsAway(frame); });
}

QObject* GUI_WebPage::createPlugin(const QString& classid, const QUrl&, const QStringList&, const QStringList&) {
    if (classid == QLatin1String("mdi")) {
        return m_host->getMdiWidget();
    }
    const QString name = panelPlugin(classid);
    PLG_Interface* plugin = name.isEmpty() ? nullptr : m_host->appStatus().getPlugin(name);
    if (!plugin) {
        return nullptr;
    }
    plugin->preparePanel();
    return plugin->getPanelWidget();
}

bool GUI_WebPage::acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request, NavigationType type) {
    const QUrl url = request.url();
    const bool opensWindow = !frame;
    const bool followsUser = type == NavigationTypeLinkClicked || type == NavigationTypeFormSubmitted ||
                             type == NavigationTypeFormResubmitted;
    const bool accepted = !opensWindow && (followsUser ? isWithinDocument(frame, url) : isOwnPage(url));
    if (!accepted) {
        qWarning() << "Page link refused:" << url.toString();
    }
    return accepted;
}

void GUI_WebPage::logConsoleMessage(MessageSource, MessageLevel level, const QString& message, int line,
                                    const QString& sourceId) {
    const QString text = sourceId % QLatin1Char(':') % QString::number(line) % QStringLiteral(": ") % message;
    if (level == ErrorMessageLevel) {
        qCritical() << text;
    } else if (level == WarningMessageLevel) {
        qWarning() << text;
    } else {
        qInfo() << text;
    }
}
