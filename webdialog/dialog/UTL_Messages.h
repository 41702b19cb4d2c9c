#pragma once

#include "ZebTypes.h"

class QWidget;
class ZebHost;

/// The message box that is built here and not by the host. GUI thread.
class UTL_Messages {
public:
    /// A warning that can be refused; runs an event loop. True when the user chose Ok. `parent` null is the host's
    /// main window.
    static bool warnOkCancel(const QString& text, ZebHost& host, QWidget* parent = nullptr,
                             const ButtonTexts& buttonTexts = {});
    /// Closes every box that stands, as if the user had refused.
    static void rejectAll();
};
