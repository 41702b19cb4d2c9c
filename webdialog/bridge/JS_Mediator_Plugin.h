#pragma once

#include "JS_Mediator.h"

/// Bridge of the side panel of a plug-in: the buttons of the panel and the steps of its undo stack. GUI thread.
class JS_Mediator_Plugin : public JS_Mediator {
    Q_OBJECT

public:
    using JS_Mediator::JS_Mediator;

public Q_SLOTS:
    virtual QString name() = 0;
    /// The name that the user sees.
    virtual QString uiName() = 0;

    virtual void onOpen() = 0;
    virtual void onApply() = 0;
    virtual void onOK() = 0;
    virtual void onCancel() = 0;
    virtual void onReset() = 0;
    virtual void onClose() = 0;
    virtual void onClosed() = 0;

    virtual void undo() = 0;
    virtual void redo() = 0;
    /// What is done until `endMacro` is one step.
    virtual void beginMacro() = 0;
    virtual void endMacro() = 0;

    virtual bool isCurrentDummy() = 0;
    virtual QString getCurrentWindowTitle() = 0;
};
