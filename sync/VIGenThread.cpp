#include "VIGenThread.h"

#include "LogFailure.h"

#include <QDebug>
#include <QProgressDialog>

void VIGenThread::attachDialog(QProgressDialog* dialog) {
    connect(this, &VIGenThread::finished, dialog, &QProgressDialog::reset);
}

void VIGenThread::run() {
    qDebug() << "[START]"
             << "VIGenThread";
    logFailure([this] { m_result = m_work(); });
    Q_EMIT finished();
    quit();
    qDebug() << "[END]"
             << "VIGenThread";
}
