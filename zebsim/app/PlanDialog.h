#pragma once

#include "SavePlan.h"

#include <QDialog>

class QTreeView;
class QListWidget;

/// Every file that a save is about to write, and what stands against it. Accepted, the save may begin; rejected, the
/// operator goes back to what was typed. A plan that is not possible can only be gone back from.
class PlanDialog : public QDialog {
    Q_OBJECT

public:
    PlanDialog(SavePlan plan, QWidget* parent);

    const SavePlan& plan() const { return m_plan; }

private:
    QString summary() const;
    QListWidget* makeEntries();
    QTreeView* makeFiles();
    void addButtons();

    const SavePlan m_plan;
};
