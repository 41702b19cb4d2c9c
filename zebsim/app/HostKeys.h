#pragma once

#include "BarKey.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>

class QAction;
class QToolBar;
class SimHost;

/// The viewer's keys that work all cameras: record, cancel, disconnect. The record key means the table while that is
/// the window in front. It does what it shows, once, and shows that it does not: a second press of a double one is no
/// other.
class HostKeys : public QObject {
    Q_OBJECT

public:
    /// Goes with the bar. The host must outlive it.
    HostKeys(SimHost& host, QToolBar& bar);

    QList<QAction*> actions() { return {&m_record.action(), m_cancel, m_disconnect}; }

private:
    void record();
    void disconnectAll();
    void refresh();
    QString recordRefusal() const;

    SimHost& m_host;
    BarKey m_record;
    QAction* m_cancel;
    QAction* m_disconnect;
    int m_shownState = 0;
    QElapsedTimer m_sinceRecord;
};
