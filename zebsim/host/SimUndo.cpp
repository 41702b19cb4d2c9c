#include "SimUndo.h"

#include "HostCalls.h"

void SimUndo::clear() {
    m_calls.change(OPERATION("ZebUndo::clear"));
}

bool SimUndo::canUndo() const {
    m_calls.ask(OPERATION("canUndo"));
    return false;
}

bool SimUndo::canRedo() const {
    m_calls.ask(OPERATION("canRedo"));
    return false;
}

void SimUndo::beginMacro(const QString& text) {
    m_calls.change(OPERATION("ZebUndo::beginMacro"), {text});
}

void SimUndo::endMacro() {
    m_calls.change(OPERATION("ZebUndo::endMacro"));
}
