#include "host/SimUndo.h"

#include "host/Journal.h"

void SimUndo::clear() {
    m_journal.record("ZebUndo::clear");
}

void SimUndo::beginMacro(const QString& text) {
    m_journal.record("ZebUndo::beginMacro", {text});
}

void SimUndo::endMacro() {
    m_journal.record("ZebUndo::endMacro");
}
