#pragma once

#include "ZebUndo.h"

class HostCalls;

/// The undo stack. Nothing is undone here: what is asked of it stands in the journal.
class SimUndo : public ZebUndo {
public:
    explicit SimUndo(const HostCalls& calls) : m_calls(calls) {}

    void clear() override;
    void beginMacro(const QString& text) override;
    void endMacro() override;
    bool canUndo() const override;
    bool canRedo() const override;

private:
    const HostCalls& m_calls;
};
