#include "StartBench.h"

#include "GUI_WebView.h"
#include "Median.h"
#include "OpenTable.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QVBoxLayout>
#include <QWebElement>
#include <QWebFrame>

#include <stdexcept>

namespace {

constexpr int Runs = 5;

/// Processes events until `done`.
template <typename Condition>
void waitUntil(Condition&& done, const char* failure) {
    QElapsedTimer waiting;
    waiting.start();
    while (!done()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        if (waiting.hasExpired(120000)) {
            throw std::runtime_error(failure);
        }
    }
}

/// Both pages find their resources as if for the first time.
void forget() {
    QCoreApplication::processEvents();
    QWebSettings::clearMemoryCaches();
}

}  // namespace

QJsonObject StartBench::run() {
    timeTable();  // the engine's own start is nobody's
    QVector<double> tables;
    QVector<double> pages;
    for (int run = 0; run < Runs; ++run) {
        pages.append(timePlainPage());
        tables.append(timeTable());
    }
    return {{QStringLiteral("open"), median(tables)}, {QStringLiteral("plain"), median(pages)}};
}

double StartBench::timeTable() {
    forget();
    OpenTable table(m_cameras.host());
    m_painted = 0;
    m_clock.start();
    table.open();
    m_view = table.view();
    m_view->installEventFilter(this);
    waitUntil([this] { return m_painted > 0; }, "The table paints no rows.");
    m_view->removeEventFilter(this);

    table.waitForRows(QStringLiteral("cameraInfoTab"));
    m_size = m_view->size();
    return m_painted;
}

double StartBench::timePlainPage() {
    forget();
    m_clock.start();
    QDialog window;
    QVBoxLayout layout(&window);
    layout.setContentsMargins(0, 0, 0, 0);
    GUI_WebView view(&m_cameras.host(), &window);
    layout.addWidget(&view);
    window.resize(m_size);
    bool loaded = false;
    connect(&view, &QWebView::loadFinished, this, [&loaded] { loaded = true; });
    view.setHtml(m_markup, QUrl(QStringLiteral("qrc:/")));
    window.show();
    waitUntil([&loaded] { return loaded; }, "The plain page does not load.");
    m_view = &view;
    if (!hasRows()) {
        throw std::runtime_error("The plain page has no rows.");
    }
    view.repaint();
    return elapsed();
}

/// There are rows, and their layout is made.
bool StartBench::hasRows() const {
    const QWebElementCollection rows =
        m_view->page()->mainFrame()->findAllElements(QStringLiteral("#cameraInfoTab tr[recid]"));
    return rows.count() > 1 && rows.first().geometry().height() > 0;
}

bool StartBench::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_view || event->type() != QEvent::Paint || m_painted > 0 || !hasRows()) {
        return QObject::eventFilter(watched, event);
    }
    watched->event(event);
    m_painted = elapsed();
    // What was painted, before the page goes on.
    m_markup = m_view->page()
                   ->mainFrame()
                   ->evaluateJavaScript(
                       QStringLiteral("var page = document.documentElement.cloneNode(true);"
                                      "var own = page.querySelector('script[src=\"qrc:/wrentabledialog.js\"]');"
                                      "own.parentNode.removeChild(own);"
                                      "'<!DOCTYPE html>' + page.outerHTML"))
                   .toString();
    return true;
}
