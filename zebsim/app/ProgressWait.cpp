#include "ProgressWait.h"

#include "GUI_MarqueeProgressDialog.h"
#include "HostCalls.h"
#include "ParallelRows.h"
#include "UiText.h"
#include "ZebHost.h"

#include <QApplication>
#include <QEventLoop>
#include <QFontMetrics>
#include <QFutureWatcher>
#include <QPointer>
#include <QTimer>

namespace {

/// Milliseconds between two looks at the rows.
constexpr int LookAgain = 50;
/// More names than these are counted. Each has so many pixels, four a line.
constexpr int MostNames = 8;
constexpr int NamesALine = 4;
constexpr int NameWidth = 150;

/// Nobody closes it, but it goes with the main window, which may be destroyed meanwhile.
QPointer<GUI_MarqueeProgressDialog> show(ZebHost& host, const QString& text, const QString& cancelText) {
    const HostCalls::Own own;
    auto* progress = new GUI_MarqueeProgressDialog(&host, text, cancelText, true);
    progress->hold(true);
    progress->show();
    return progress;
}

/// Who has not answered.
QString awaited(const ParallelRows& rows, const QStringList& names) {
    QStringList who;
    const std::vector<int> unfinished = rows.unfinished();
    for (const int row : unfinished) {
        who << names.at(row);
    }
    const QFontMetrics metrics(QApplication::font());
    QString shown;
    for (int i = 0; i < qMin(who.size(), MostNames); ++i) {
        shown += i == 0 ? QString() : i % NamesALine == 0 ? QStringLiteral(",\n") : QStringLiteral(", ");
        shown += metrics.elidedText(who.at(i).simplified(), Qt::ElideRight, NameWidth);
    }
    return who.size() > MostNames
               ? uiText("No answer yet: %1 and %2 more").arg(shown, QString::number(who.size() - MostNames))
               : uiText("No answer yet: %1").arg(shown);
}

}  // namespace

void waitWithProgress(ZebHost& host, const QString& text, QFutureWatcherBase& watcher) {
    if (watcher.isFinished()) {
        return;
    }
    QEventLoop loop;
    QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    const QPointer<GUI_MarqueeProgressDialog> progress = show(host, host.translate(text), {});
    loop.exec();
    delete progress;
}

void waitWithProgress(ZebHost& host, ParallelRows& rows, const QStringList& names) {
    const QString cancelText = rows.waiting().empty() ? QString() : uiText("Cancel");
    const QPointer<GUI_MarqueeProgressDialog> progress = show(host, awaited(rows, names), cancelText);
    QObject::connect(progress, &QProgressDialog::canceled, progress, [&rows] { rows.leaveOutWaiting(); });
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (rows.waitFor(0)) {
            loop.quit();
        } else if (progress) {
            progress->setLabelText(awaited(rows, names));
            if (rows.waiting().empty()) {
                progress->setCancelButton(nullptr);
            }
        }
    });
    look.start(LookAgain);
    loop.exec();
    // The application may be ending its event loops.
    rows.leaveOutWaiting();
    while (!rows.waitFor(1000)) {
    }
    delete progress;
}
