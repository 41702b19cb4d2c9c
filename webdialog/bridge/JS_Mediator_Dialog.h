#pragma once

#include "JS_Mediator.h"

/// Bridge of a page in a dialog. GUI thread.
class JS_Mediator_Dialog : public JS_Mediator {
    Q_OBJECT

public:
    using JS_Mediator::JS_Mediator;

    /// A recording that the dialog follows begins, and ends.
    virtual void setRecordRunning() {}
    virtual void clearRecordRunning() {}

Q_SIGNALS:
    /// Raised by the page or a subclass: close the dialog with that result.
    void accept();
    void reject();
    /// The dialog was rejected.
    void rejected();

public Q_SLOTS:
    /// Size that the page wants, in pixels; -1 for none.
    int getHeight() { return m_height; }
    int getWidth() { return m_width; }

protected:
    int m_width = -1;
    int m_height = -1;
};
