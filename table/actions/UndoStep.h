#pragma once

#include "ZebTypes.h"

#include <QtGlobal>

class QString;
class ZebHost;
struct CameraAction;

/// What is changed while one lives is one step of the host's undo stack, called as "Frame rate 2000 fps". A stack that
/// fails keeps nobody from the change: that stands in the log. GUI thread.
class UndoStep {
public:
    /// `value` as the slot gets it, `doc` any of the cameras.
    UndoStep(ZebHost& host, const CameraAction& action, DOC_Interface& doc, const QString& value);
    ~UndoStep();
    Q_DISABLE_COPY(UndoStep)

private:
    ZebHost& m_host;
    bool m_isOpen = false;
};
