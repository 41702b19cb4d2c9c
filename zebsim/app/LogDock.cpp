#include "LogDock.h"

#include "Journal.h"
#include "LogStore.h"
#include "UiText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabWidget>

namespace {

constexpr int ShownLines = 2000;

QString asLine(const QString& call, const QVariantList& args) {
    const QByteArray list = QJsonDocument(QJsonArray::fromVariantList(args)).toJson(QJsonDocument::Compact);
    return call % QLatin1Char('(') % QString::fromUtf8(list.mid(1, list.size() - 2)) % QLatin1Char(')');
}

/// A view that stands at its end stays there, also when a lower bar takes room of it.
void stayAtEnd(QScrollBar& bar) {
    QObject::connect(&bar, &QScrollBar::rangeChanged, &bar, [&bar, end = bar.maximum()](int, int maximum) mutable {
        if (bar.value() >= end) {
            bar.setValue(maximum);
        }
        end = maximum;
    });
}

}  // namespace

LogDock::LogDock(const LogStore& log, const Journal& journal, QWidget* parent) : QDockWidget(uiText("Log"), parent) {
    setObjectName(QStringLiteral("log"));
    auto* logView = makeView();
    auto* callView = makeView();
    auto* tabs = new QTabWidget(this);
    tabs->addTab(logView, uiText("Log"));
    tabs->addTab(callView, uiText("Calls"));
    setWidget(tabs);
    // Both may be raised on any thread; the receiver's one is the GUI thread.
    connect(&log, &LogStore::added, logView, &QPlainTextEdit::appendPlainText);
    connect(&journal, &Journal::recorded, callView, [callView](const QString& call, const QVariantList& args) {
        callView->appendPlainText(asLine(call, args));
    });
}

QPlainTextEdit* LogDock::makeView() {
    auto* view = new QPlainTextEdit(this);
    view->setReadOnly(true);
    view->setMaximumBlockCount(ShownLines);
    view->setLineWrapMode(QPlainTextEdit::NoWrap);
    stayAtEnd(*view->verticalScrollBar());
    return view;
}
