#include "WorkerCall.h"

#include "APP_ConcurrentException.h"
#include "FailureText.h"
#include "ZebHost.h"

#include <QFutureWatcher>
#include <QtConcurrent>

#include <utility>

namespace {

/// Runs on a worker's thread, which would drop the text of any other exception.
void runWork(const std::function<void()>& work) {
    try {
        work();
    } catch (const APP_Exception& e) {
        throw APP_ConcurrentException(e);
    } catch (...) {
        throw APP_ConcurrentException(APP_Exception(currentFailureText()));
    }
}

/// Keeps a worker from outliving what it was started for, on every way out.
class WorkerEnd {
public:
    explicit WorkerEnd(QFuture<void> worker) : m_worker(std::move(worker)) {}
    ~WorkerEnd() {
        try {
            m_worker.waitForFinished();
        } catch (...) {  // whoever asks the worker for its outcome has been told
        }
    }
    Q_DISABLE_COPY(WorkerEnd)

private:
    QFuture<void> m_worker;
};

}  // namespace

void callOnWorker(ZebHost& host, const QString& text, const std::function<void()>& work) {
    QFutureWatcher<void> watcher;
    watcher.setFuture(QtConcurrent::run([work] { runWork(work); }));
    const WorkerEnd end(watcher.future());
    host.execProgress(text, watcher);
    // Asked here and not by the host, which must not meet an exception of ours.
    watcher.waitForFinished();
}
