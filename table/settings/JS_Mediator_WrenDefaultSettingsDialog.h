#pragma once

#include "JS_Mediator_Dialog.h"

/// What the page of the default settings can ask. GUI thread.
class JS_Mediator_WrenDefaultSettingsDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    explicit JS_Mediator_WrenDefaultSettingsDialog(ZebHost* host, QObject* parent = nullptr);

public Q_SLOTS:
    /// The cameras that can lead a chain, as JSON with the members of each, `address` and `name`.
    QString getMasterCameraList();
    /// End the dialog, accepted or rejected.
    void ok();
    void cancel();
    /// Every tab has its columns in the host's own order again; stored at once.
    void resetSortTable();
};
