#include "UndoStep.h"

#include "CameraAction.h"
#include "LogFailure.h"
#include "ZebHost.h"
#include "ZebUndo.h"

UndoStep::UndoStep(ZebHost& host, const CameraAction& action, DOC_Interface& doc, const QString& value) : m_host(host) {
    logFailure([&] {
        m_host.undo().beginMacro(host.translate(QLatin1String(action.label)) % QLatin1Char(' ') %
                                 textOf(action, host, doc, value));
        m_isOpen = true;
    });
}

UndoStep::~UndoStep() {
    if (m_isOpen) {
        logFailure([this] { m_host.undo().endMacro(); });
    }
}
