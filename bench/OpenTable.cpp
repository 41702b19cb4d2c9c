#include "OpenTable.h"

#include "SimHost.h"

#include <QCoreApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QWebFrame>
#include <QWebView>

#include <stdexcept>

OpenTable::OpenTable(SimHost& host)
    : m_host(host), m_library(QStringLiteral(WREN_LIBRARY), host), m_slot(host, m_library.plugin()) {}

QWebView* OpenTable::view() const {
    const QDialog* dialog = m_library.plugin().getDialog(false);
    return dialog != nullptr ? dialog->findChild<QWebView*>() : nullptr;
}

QVariant OpenTable::evaluate(const QString& script) const {
    return view()->page()->mainFrame()->evaluateJavaScript(script);
}

void OpenTable::waitForRows(const QString& element) const {
    const QString drawn = QStringLiteral(
                              "typeof wrentabledialog_obj === 'object' && wrentabledialog_obj.initialize === false && "
                              "document.querySelectorAll('#%1 tr[recid]').length > 1")
                              .arg(element);
    QElapsedTimer waiting;
    waiting.start();
    while (m_host.updates().isPending() || !evaluate(drawn).toBool()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        if (waiting.hasExpired(120000)) {
            throw std::runtime_error("The page of the table shows no rows.");
        }
    }
}

void OpenTable::showLiveControl() const {
    waitForRows(QStringLiteral("cameraInfoTab"));
    // Without a value: the engine would copy the whole document into the answer.
    evaluate(QStringLiteral("void $('#tabs').tabs('option', 'active', 1)"));
    waitForRows(QStringLiteral("livecontrolTab"));
}
