#pragma once

#include <QString>

class QProgressDialog;
class QThread;

/// A worker that runs while a progress dialog stands. GUI thread, but for the work of the thread itself.
class RUN_ProgressThreadInterface {
public:
    virtual ~RUN_ProgressThreadInterface() = default;

    /// The thread, which the worker owns.
    virtual QThread* thread() = 0;
    /// Makes the end of the work reset `dialog`.
    virtual void attachDialog(QProgressDialog* dialog) = 0;
    /// Asks the work to end early.
    virtual void requestStop() = 0;
    /// What went wrong; empty when nothing did.
    virtual QString errorMessage() const = 0;
};
