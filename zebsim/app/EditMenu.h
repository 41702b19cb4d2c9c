#pragma once

#include <QObject>

class QAction;
class QMenu;
class SimHost;
class SimUndo;

/// Undo and Redo of the viewer's menu, with what they would do. A child of the menu.
class EditMenu : public QObject {
    Q_OBJECT

public:
    /// `host` must outlive the menu.
    EditMenu(SimHost& host, QMenu& menu);

private:
    void choose(QString (SimUndo::*work)());
    void refresh();

    SimHost& m_host;
    QAction* const m_undo;
    QAction* const m_redo;
};
