#pragma once

#include "BarKey.h"

#include <QList>

class HostWindows;
class QToolBar;
class SimHost;

/// The viewer's keys that save what is recorded, or convert what is open; not in live mode. They mean the table while
/// that is the window in front, but for files, which it does not list.
class SaveKeys : public QObject {
    Q_OBJECT

public:
    /// The object goes with the bar. Host and windows must live until the application's event loop has ended.
    SaveKeys(SimHost& host, HostWindows& windows, QToolBar& bar);

    QList<QAction*> actions() { return {&m_save.action(), &m_layout.action()}; }

private:
    QString refusal() const;
    void refresh();

    SimHost& m_host;
    BarKey m_save;
    BarKey m_layout;
};
