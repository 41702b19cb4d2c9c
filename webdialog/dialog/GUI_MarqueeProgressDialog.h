#pragma once

#include "GUI_ProgressDialog.h"

class RUN_ProgressThreadInterface;
class ZebHost;

/// A busy bar over the host's main window while a worker runs. GUI thread.
class GUI_MarqueeProgressDialog : public GUI_ProgressDialog {
    Q_OBJECT

public:
    /// No cancel button when `cancelText` is empty. `modal`: for the whole application.
    GUI_MarqueeProgressDialog(ZebHost* host, const QString& label, const QString& cancelText, bool modal);

    /// Starts the worker and runs the dialog until the work has reset it or the user has cancelled; back when the
    /// thread has ended. Answers the dialog's result.
    int execThread(RUN_ProgressThreadInterface& worker);

private:
    const bool m_cancellable;
};
