#include "GUI_MarqueeProgressDialog.h"

#include "RUN_ProgressThreadInterface.h"
#include "Style.h"
#include "ZebHost.h"

#include <QThread>

GUI_MarqueeProgressDialog::GUI_MarqueeProgressDialog(ZebHost* host, const QString& label, const QString& cancelText,
                                                     bool modal)
    : GUI_ProgressDialog(label, cancelText, 0, 0, host->getMainWindow(), Qt::Tool | Qt::FramelessWindowHint, true),
      m_cancellable(!cancelText.isEmpty()) {
    setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
    setAutoClose(true);
    setAutoReset(true);
    applyNativeStyle(*host, *this);
}

int GUI_MarqueeProgressDialog::execThread(RUN_ProgressThreadInterface& worker) {
    QThread* thread = worker.thread();
    thread->start(QThread::InheritPriority);
    // Without a cancel button the wait for its end would be unseen.
    hold(!m_cancellable);
    const int result = exec();
    hold(false);
    worker.requestStop();
    thread->wait();
    reset();
    return result;
}
