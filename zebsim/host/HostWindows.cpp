#include "HostWindows.h"

#include "ParallelRows.h"

#include <QEventLoop>
#include <QFutureWatcher>

#include <limits>

void HostWindows::runProgress(const QString& /*text*/, QFutureWatcherBase& watcher) {
    QEventLoop loop;
    QObject::connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    if (!watcher.isFinished()) {
        loop.exec();
    }
}

void HostWindows::waitForRows(ParallelRows& rows, const QStringList& /*names*/) {
    while (!rows.waitFor(std::numeric_limits<int>::max())) {
    }
}
