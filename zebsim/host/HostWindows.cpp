#include "HostWindows.h"

#include <QEventLoop>
#include <QFutureWatcher>

void HostWindows::runProgress(const QString& /*text*/, QFutureWatcherBase& watcher) {
    QEventLoop loop;
    QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    if (!watcher.isFinished()) {
        loop.exec();
    }
}
