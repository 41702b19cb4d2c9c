#pragma once

#include "GUI_WebViewDialog.h"
#include "NamePromises.h"
#include "SavePlan.h"

#include <memory>
#include <optional>

class JS_Mediator_SaveDialog;
class SimHost;

/// The dialog of a page that saves. Save shows the plan; once that is agreed to, the dialog is accepted, and what was
/// chosen in it is stored. GUI thread.
class GUI_SaveDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// `title` is translated. `bridge` is owned from here on; its name is that of the page.
    GUI_SaveDialog(SimHost& host, const QString& title, JS_Mediator_SaveDialog* bridge, QWidget* parent);

    /// Once accepted: the plan, and what keeps its names from other saves.
    const SavePlan& plan() const { return *m_plan; }
    std::unique_ptr<NamePromises::Save> takeNames() { return std::move(m_names); }

private:
    void save();

    SimHost& m_simHost;
    JS_Mediator_SaveDialog& m_saving;
    std::optional<SavePlan> m_plan;
    std::unique_ptr<NamePromises::Save> m_names;
};

/// The dialog in which it is chosen how snapshots are written; runs until it is closed.
void runSnapShotSettings(SimHost& host);
