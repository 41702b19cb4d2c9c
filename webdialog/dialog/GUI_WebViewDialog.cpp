#include "GUI_WebViewDialog.h"

#include "GUI_WebView.h"
#include "JS_Mediator_Dialog.h"
#include "LogFailure.h"
#include "PageEnd.h"
#include "TraceScope.h"
#include "WindowPlacement.h"
#include "ZebHost.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr Qt::WindowFlags WebDialogFlags{Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint};
constexpr int FadeDuration = 500;  // ms

}  // namespace

GUI_WebViewDialog::GUI_WebViewDialog(ZebHost* host, const QString& title, const QString& url,
                                     JS_Mediator_Dialog* bridge, QWidget* parent)
    : GUI_Dialog(parent, WebDialogFlags, true),
      m_host(host),
      m_bridge(bridge),
      m_layout(new QVBoxLayout),
      m_view(new GUI_WebView(host, this)) {
    if (m_host->isViewerRunning()) {
        m_host->suspendViewer();
        m_viewerSuspended = true;
    }
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->addWidget(m_view);
    setLayout(m_layout);
    setWindowTitle(m_host->translate(title));
    connectSignals();
    m_host->attachBridge(m_view, m_bridge);
    m_view->load(QUrl(url));
}

void GUI_WebViewDialog::connectSignals() {
    connect(m_bridge, &JS_Mediator_Dialog::accept, this, &QDialog::accept);
    connect(m_bridge, &JS_Mediator_Dialog::reject, this, &QDialog::reject);
    connect(this, &QDialog::rejected, this, &GUI_WebViewDialog::slotRejected);
    connect(m_view, &QWebView::loadStarted, this, &GUI_WebViewDialog::loadStarted);
    connect(m_view, &QWebView::loadProgress, this, &GUI_WebViewDialog::loadProgress);
    connect(m_view, &QWebView::loadFinished, this, &GUI_WebViewDialog::loadFinished);
}

GUI_WebViewDialog::~GUI_WebViewDialog() {
    endPage();
    delete m_layout;
}

void GUI_WebViewDialog::endPage() {
    if (!m_view) {
        return;
    }
    disconnect(m_view, nullptr, this, nullptr);  // a load that is cut off ends once more
    if (m_viewerSuspended && !m_host->isApplicationClosing()) {
        m_host->resumeViewer();
    }
    const QList<JS_Mediator*> owned = bridges();
    m_bridge = nullptr;
    m_extraBridges.clear();
    destroyPage(std::exchange(m_view, nullptr), owned);
    m_loading.reset();
}

void GUI_WebViewDialog::addBridge(JS_Mediator* bridge) {
    bridge->becomeSecond();
    m_host->attachBridge(m_view, bridge);
    m_extraBridges.append(bridge);
}

QList<JS_Mediator*> GUI_WebViewDialog::bridges() const {
    return m_bridge ? QList<JS_Mediator*>{m_bridge} + m_extraBridges : QList<JS_Mediator*>();
}

JS_Mediator* GUI_WebViewDialog::busyBridge() const {
    return findBusy(bridges());
}

void GUI_WebViewDialog::slotRejected() {
    Q_EMIT m_bridge->rejected();
}

void GUI_WebViewDialog::loadStarted() {
    const TraceScope trace(QStringLiteral("GUI_WebViewDialog::loadStarted"));
    m_loading.emplace(*m_host);
    m_view->setFocus();
    delete m_fade;
    setWindowOpacity(0.0);
}

void GUI_WebViewDialog::loadProgress(int) {}

void GUI_WebViewDialog::loadFinished(bool ok) {
    const TraceScope trace(QStringLiteral("GUI_WebViewDialog::loadFinished"), {{"ok", ok}});
    logFailure([this] { centerWithoutMainWindow(*m_host, *this); });
    fadeIn();
    m_loading.reset();
    if (m_updateOnLoad) {
        m_host->updateUI(zeb::UpdateAll, true);
    }
}

void GUI_WebViewDialog::fadeIn() {
    m_fade = new QPropertyAnimation(this, QByteArrayLiteral("windowOpacity"), this);
    m_fade->setDuration(FadeDuration);
    m_fade->setStartValue(0.0);
    m_fade->setEndValue(1.0);
    m_fade->setEasingCurve(QEasingCurve::InExpo);
    m_fade->start(QAbstractAnimation::DeleteWhenStopped);
}

void GUI_WebViewDialog::closeEvent(QCloseEvent*) {
    const TraceScope trace(QStringLiteral("GUI_WebViewDialog::closeEvent"));
    reject();
}
