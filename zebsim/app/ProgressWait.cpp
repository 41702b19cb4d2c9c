#include "ProgressWait.h"

#include "GUI_MarqueeProgressDialog.h"
#include "HostCalls.h"
#include "ZebHost.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QFutureWatcher>
#include <QPointer>

namespace {

/// A window manager may close any window.
class StayOpen : public QObject {
public:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Close) {
            return QObject::eventFilter(object, event);
        }
        event->ignore();
        return true;
    }
};

}  // namespace

void waitWithProgress(ZebHost& host, const QString& text, QFutureWatcherBase& watcher) {
    if (watcher.isFinished()) {
        return;
    }
    QEventLoop loop;
    QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    StayOpen stayOpen;
    // It goes with the main window, which may be destroyed meanwhile.
    const QPointer<GUI_MarqueeProgressDialog> progress = [&] {
        const HostCalls::Own own;
        return new GUI_MarqueeProgressDialog(&host, host.translate(text), {}, true);
    }();
    progress->installEventFilter(&stayOpen);
    progress->show();
    loop.exec();
    delete progress;
}
