#include "host/SimUndo.h"

#include "host/Journal.h"

void SimUndo::clear() {
    m_journal.record("ZebUndo::clear");
    m_steps.clear();
}

void SimUndo::beginMacro(const QString& text) {
    m_journal.record("ZebUndo::beginMacro", {text});
    m_open.append(text);
}

void SimUndo::endMacro() {
    m_journal.record("ZebUndo::endMacro");
    if (m_open.isEmpty()) {
        return;
    }
    // A macro within another belongs to that one's step.
    const QString text = m_open.takeLast();
    if (m_open.isEmpty()) {
        m_steps.append(text);
    }
}
