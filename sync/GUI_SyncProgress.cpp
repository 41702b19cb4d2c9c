#include "GUI_SyncProgress.h"

#include "RUN_SyncingThread.h"
#include "Style.h"
#include "TextKey.h"
#include "ZebHost.h"

#include <QCoreApplication>

GUI_SyncProgress::GUI_SyncProgress(ZebHost* host)
    : GUI_ProgressDialog({}, {}, 0, 0, host->getMainWindow(), Qt::FramelessWindowHint, true) {
    applyNativeStyle(*host, *this);
    setLabelText(host->translate(TextKey("Syncing")));
}

bool GUI_SyncProgress::run(RUN_SyncingThread& thread) {
    hold(true);
    connect(&thread, &RUN_SyncingThread::complete, this, &GUI_SyncProgress::complete);
    thread.start(QThread::InheritPriority);
    exec();
    // The application may be ending its event loops; the cameras are handed over all the same.
    thread.wait();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    return m_result;
}

void GUI_SyncProgress::complete(bool result) {
    hold(false);
    m_result = result;
    close();
}
