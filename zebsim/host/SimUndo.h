#pragma once

#include "ZebUndo.h"

class Journal;

/// The undo stack. Nothing is undone here: what is asked of it stands in the journal.
class SimUndo : public ZebUndo {
public:
    explicit SimUndo(Journal& journal) : m_journal(journal) {}

    void clear() override;
    void beginMacro(const QString& text) override;
    void endMacro() override;
    bool canUndo() const override { return false; }
    bool canRedo() const override { return false; }

private:
    Journal& m_journal;
};
