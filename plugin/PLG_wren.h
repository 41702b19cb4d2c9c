#pragma once

#include "PLG_Button.h"

class JS_Mediator_WrenTableDialog;

/// The button that opens the camera table.
class PLG_wren : public PLG_Button {
    Q_OBJECT

public:
    PLG_wren();
    ~PLG_wren() override;

    void activate() override;
    void deactivate() override;
    bool isButtonEnabled() const override;
    /// Asks before recorded data is erased, which the table's live view needs. Throws an `APP_Exception` without a
    /// text when the user refuses.
    void prepareOpen() override;
    QDialog* createDialog(bool create) override;

public Q_SLOTS:
    void slotRecord();
    void slotSaveFile();
    void slotSaveLayout();
    void slotEndRecording();
    void slotDisconnect();
    void slotStartAutoUpdate();
    void slotStopAutoUpdate();
    void slotScreenShot(const QString& path) override;

private:
    void setRunningInHost(bool running);
    /// Null while there is no table.
    JS_Mediator_WrenTableDialog* table();
    /// The table for a key of the host, after a number that is being typed in it has gone out; the call that is to
    /// follow would refuse that. Null unless the table is the active window.
    JS_Mediator_WrenTableDialog* tableForKey();
};
