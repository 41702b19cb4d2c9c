#pragma once

#include "RUN_ProgressThreadInterface.h"

#include <QThread>

#include <atomic>
#include <functional>

/// Runs one piece of work while a progress dialog stands. It can't be stopped. Made and destroyed on the GUI thread;
/// wait for its end before it is destroyed.
class VIGenThread : public QThread, public RUN_ProgressThreadInterface {
    Q_OBJECT

public:
    explicit VIGenThread(std::function<bool()> work) : m_work(std::move(work)) {}

    QThread* thread() override { return this; }
    void attachDialog(QProgressDialog* dialog) override;
    void requestStop() override {}
    QString errorMessage() const override { return {}; }

    /// What the work has answered; false before its end, and when it threw.
    bool result() const { return m_result; }

Q_SIGNALS:
    /// The work is done. The base class has a signal of this name too: the thread has ended.
    void finished();

protected:
    void run() override;

private:
    const std::function<bool()> m_work;
    std::atomic<bool> m_result{false};
};
