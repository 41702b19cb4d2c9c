#pragma once

#include "ZebUndo.h"

#include <QStringList>

class Journal;

/// The steps that could be undone, by their texts.
class SimUndo : public ZebUndo {
public:
    explicit SimUndo(Journal& journal) : m_journal(journal) {}

    QStringList steps() const { return m_steps; }

    void clear() override;
    void beginMacro(const QString& text) override;
    void endMacro() override;

private:
    Journal& m_journal;
    QStringList m_steps;
    QStringList m_open;
};
