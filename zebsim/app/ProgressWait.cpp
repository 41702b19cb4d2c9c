#include "ProgressWait.h"

#include "GUI_MarqueeProgressDialog.h"
#include "HostCalls.h"
#include "ParallelRows.h"
#include "RowsWait.h"
#include "UiText.h"
#include "ZebHost.h"

#include <QEventLoop>
#include <QFutureWatcher>
#include <QPointer>
#include <QTimer>

namespace {

/// Milliseconds between two looks at the rows.
constexpr int LookAgain = 50;

/// Nobody closes it, but it goes with the main window, which may be destroyed meanwhile.
QPointer<GUI_MarqueeProgressDialog> show(ZebHost& host, const QString& text, const QString& cancelText) {
    const HostCalls::Own own;
    auto* progress = new GUI_MarqueeProgressDialog(&host, text, cancelText, true);
    progress->hold(true);
    progress->show();
    return progress;
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
    const QPointer<GUI_MarqueeProgressDialog> progress = show(host, awaitedText(host, rows, names), cancelText);
    QObject::connect(progress, &QProgressDialog::canceled, progress, [&rows] { rows.leaveOutWaiting(); });
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (rows.waitFor(0)) {
            loop.quit();
        } else if (progress) {
            progress->setLabelText(awaitedText(host, rows, names));
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
